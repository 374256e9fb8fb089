#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillmere {

/// A binary property list, read where it lies: nothing is unpacked that is not asked for, so a list
/// whose references share, nest or go round in circles costs no more than its bytes. Any thread.
class BinaryPropertyList
{
public:
    using Object = std::uint64_t; ///< a number in the list's table of objects

    /// Checks the list as a whole, in time that grows with its size only: every object within the
    /// bytes, every reference to an object, no two objects in the same place.
    static std::optional<BinaryPropertyList> parse(const QByteArray &bytes);

    Object top() const { return top_; }

    bool isDictionary(Object object) const;

    /// Of a dictionary; absent for anything else.
    std::optional<Object> value(Object dictionary, QLatin1StringView key) const;

    /// Absent unless it is an array that goes so far.
    std::optional<Object> element(Object array, std::int64_t index) const;

    std::optional<QString> text(Object object) const;
    std::optional<std::int64_t> integer(Object object) const;

private:
    enum class Kind { Other, Integer, Ascii, Utf16, Array, Dictionary, Collection };

    /// Where the content of an object lies.
    struct Content {
        Kind kind = Kind::Other;
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
        std::uint64_t count = 0; ///< bytes, units, elements or pairs
    };

    bool readTrailer();
    bool isSound() const;
    bool referencesAreSound(const Content &content) const;
    std::uint64_t number(std::uint64_t at, std::uint64_t size) const;
    std::uint64_t offsetOf(Object object) const;
    Object reference(const Content &content, std::uint64_t index) const;
    std::optional<Content> contentAt(std::uint64_t offset) const;
    Content contentOf(Object object) const;
    bool isText(Object object, QLatin1StringView expected) const;

    QByteArray bytes_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t tableOffset_ = 0; ///< the objects end here
};

} // namespace quillmere
