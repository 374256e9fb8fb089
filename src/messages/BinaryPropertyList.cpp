#include "messages/BinaryPropertyList.h"

#include <QtEndian>

namespace quillmere {

namespace {

constexpr QByteArrayView magic("bplist0");
constexpr std::uint64_t headerSize = 8;
constexpr std::uint64_t trailerSize = 32;
constexpr std::uint64_t largestNumber = 8; // bytes of an offset or a reference
constexpr unsigned countFollows = 0xF;

} // namespace

std::optional<BinaryPropertyList> BinaryPropertyList::parse(const QByteArray &bytes)
{
    BinaryPropertyList list;
    list.bytes_ = bytes;
    if (!bytes.startsWith(magic) || !list.readTrailer() || !list.isSound())
        return std::nullopt;
    return list;
}

bool BinaryPropertyList::readTrailer()
{
    const auto size = static_cast<std::uint64_t>(bytes_.size());
    if (size < headerSize + trailerSize)
        return false;
    const std::uint64_t trailer = size - trailerSize;
    offsetSize_ = number(trailer + 6, 1);
    referenceSize_ = number(trailer + 7, 1);
    objectCount_ = number(trailer + 8, 8);
    top_ = number(trailer + 16, 8);
    tableOffset_ = number(trailer + 24, 8);
    return offsetSize_ >= 1 && offsetSize_ <= largestNumber && referenceSize_ >= 1 &&
           referenceSize_ <= largestNumber && tableOffset_ >= headerSize &&
           tableOffset_ <= trailer && objectCount_ <= (trailer - tableOffset_) / offsetSize_ &&
           top_ < objectCount_;
}

bool BinaryPropertyList::isSound() const
{
    // Objects that lie apart cannot be larger together than what they lie in.
    std::uint64_t room = tableOffset_ - headerSize;
    for (Object object = 0; object < objectCount_; ++object) {
        const std::uint64_t offset = offsetOf(object);
        const auto content = contentAt(offset);
        if (!content || content->end - offset > room || !referencesAreSound(*content))
            return false;
        room -= content->end - offset;
    }
    return true;
}

bool BinaryPropertyList::referencesAreSound(const Content &content) const
{
    if (content.kind != Kind::Array && content.kind != Kind::Dictionary &&
        content.kind != Kind::Collection)
        return true;
    for (std::uint64_t at = content.begin; at < content.end; at += referenceSize_) {
        if (number(at, referenceSize_) >= objectCount_)
            return false;
    }
    return true;
}

/// Big-endian; whoever asks has made sure that the bytes are there.
std::uint64_t BinaryPropertyList::number(std::uint64_t at, std::uint64_t size) const
{
    std::uint64_t value = 0;
    for (const std::uint64_t end = at + size; at < end; ++at)
        value = value << 8U | static_cast<unsigned char>(bytes_[static_cast<qsizetype>(at)]);
    return value;
}

std::uint64_t BinaryPropertyList::offsetOf(Object object) const
{
    return number(tableOffset_ + object * offsetSize_, offsetSize_);
}

BinaryPropertyList::Object BinaryPropertyList::reference(const Content &content,
                                                         std::uint64_t index) const
{
    return number(content.begin + index * referenceSize_, referenceSize_);
}

std::optional<BinaryPropertyList::Content> BinaryPropertyList::contentAt(std::uint64_t offset) const
{
    if (offset < headerSize || offset >= tableOffset_)
        return std::nullopt;
    const auto marker = static_cast<unsigned>(number(offset, 1));
    const unsigned type = marker >> 4U;
    Content content{.begin = offset + 1, .count = marker & 0xFU};
    const auto ends = [&](std::uint64_t itemSize) -> std::optional<Content> {
        if (content.count > (tableOffset_ - content.begin) / itemSize)
            return std::nullopt;
        content.end = content.begin + content.count * itemSize;
        return content;
    };
    if (type >= 0x4 && type != 0x8 && content.count == countFollows) {
        if (content.begin >= tableOffset_)
            return std::nullopt;
        const auto size = static_cast<unsigned>(number(content.begin, 1));
        const std::uint64_t bytes = 1ULL << (size & 0xFU);
        if (size >> 4U != 0x1 || bytes > largestNumber ||
            bytes > tableOffset_ - (content.begin + 1))
            return std::nullopt;
        content.count = number(content.begin + 1, bytes);
        content.begin += 1 + bytes;
    }
    switch (type) {
    case 0x0: // null, false, true, filler
        content.count = 0;
        return ends(1);
    case 0x1:
        content.kind = Kind::Integer;
        [[fallthrough]];
    case 0x2: // a real number
    case 0x3: // a date
        content.count = 1ULL << content.count;
        return ends(1);
    case 0x4: // data
        return ends(1);
    case 0x5:
        content.kind = Kind::Ascii;
        return ends(1);
    case 0x6:
        content.kind = Kind::Utf16;
        return ends(2);
    case 0x8: // a reference of an archive
        ++content.count;
        return ends(1);
    case 0xA:
        content.kind = Kind::Array;
        return ends(referenceSize_);
    case 0xB: // sets
    case 0xC:
        content.kind = Kind::Collection;
        return ends(referenceSize_);
    case 0xD:
        content.kind = Kind::Dictionary;
        return ends(2 * referenceSize_);
    default:
        return std::nullopt;
    }
}

BinaryPropertyList::Content BinaryPropertyList::contentOf(Object object) const
{
    if (object >= objectCount_)
        return {};
    return contentAt(offsetOf(object)).value_or(Content());
}

bool BinaryPropertyList::isDictionary(Object object) const
{
    return contentOf(object).kind == Kind::Dictionary;
}

std::optional<BinaryPropertyList::Object> BinaryPropertyList::value(Object dictionary,
                                                                    QLatin1StringView key) const
{
    const Content content = contentOf(dictionary);
    if (content.kind != Kind::Dictionary)
        return std::nullopt;
    for (std::uint64_t pair = 0; pair < content.count; ++pair) {
        if (isText(reference(content, pair), key))
            return reference(content, content.count + pair);
    }
    return std::nullopt;
}

std::optional<BinaryPropertyList::Object> BinaryPropertyList::element(Object array,
                                                                      std::int64_t index) const
{
    const Content content = contentOf(array);
    if (content.kind != Kind::Array || index < 0 ||
        static_cast<std::uint64_t>(index) >= content.count)
        return std::nullopt;
    return reference(content, static_cast<std::uint64_t>(index));
}

std::optional<QString> BinaryPropertyList::text(Object object) const
{
    const Content content = contentOf(object);
    const auto bytes = QByteArrayView(bytes_).sliced(
        static_cast<qsizetype>(content.begin), static_cast<qsizetype>(content.end - content.begin));
    if (content.kind == Kind::Ascii)
        return QString::fromLatin1(bytes);
    if (content.kind != Kind::Utf16)
        return std::nullopt;
    QString text(static_cast<qsizetype>(content.count), Qt::Uninitialized);
    qFromBigEndian<char16_t>(bytes.data(), text.size(), text.data());
    return text;
}

std::optional<std::int64_t> BinaryPropertyList::integer(Object object) const
{
    const Content content = contentOf(object);
    if (content.kind != Kind::Integer)
        return std::nullopt;
    // Eight bytes are signed, fewer are not, and more are there for what does not fit eight.
    if (content.count <= largestNumber)
        return static_cast<std::int64_t>(number(content.begin, content.count));
    const std::uint64_t high = number(content.begin, largestNumber);
    const std::uint64_t low = number(content.end - largestNumber, largestNumber);
    if (content.count > 2 * largestNumber || high != 0 || low >> 63U != 0)
        return std::nullopt;
    return static_cast<std::int64_t>(low);
}

/// Looks at no more bytes than `expected` has, however long the text is.
bool BinaryPropertyList::isText(Object object, QLatin1StringView expected) const
{
    const Content content = contentOf(object);
    const bool isLike = (content.kind == Kind::Ascii || content.kind == Kind::Utf16) &&
                        content.count == static_cast<std::uint64_t>(expected.size());
    return isLike && text(object) == expected;
}

} // namespace quillmere
