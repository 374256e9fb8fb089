#include "helpers/MorkFlags.h"

#include "helpers/Files.h"

#include <array>
#include <charconv>

namespace quillmere {

namespace {

constexpr std::size_t largestIndex = 32UL * 1024 * 1024;
constexpr std::string_view magic("// <!-- <mdb:mork:z v=\"1.4\"/> -->");

enum Column { Flags, Identifier, Columns };
constexpr std::array<std::string_view, Columns> columnNames{"flags", "message-id"};

/// A value as it is written, without what protects its brackets.
std::string plain(std::string_view raw)
{
    std::string text;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        unsigned char byte = 0;
        if (raw[i] == '\\' && i + 1 < raw.size()) {
            if (raw[++i] != '\n' && raw[i] != '\r')
                text += raw[i];
        } else if (raw[i] == '$' && i + 2 < raw.size() &&
                   std::from_chars(&raw[i + 1], &raw[i + 1] + 2, byte, 16).ec == std::errc()) {
            text += static_cast<char>(byte);
            i += 2;
        } else {
            text += raw[i];
        }
    }
    return text;
}

/// Names and values are written once, as `(id=text)` in dictionaries, and rows of cells,
/// `[row(^column^value)(^column=text)]`, refer to them. What comes later changes what was before.
class Reader
{
public:
    explicit Reader(std::string_view text)
        : rest_(text)
    {
    }

    void run()
    {
        while (skipTo("<[{}@/")) {
            const char kind = rest_.front();
            rest_.remove_prefix(1);
            if (kind == '<')
                readDictionary();
            else if (kind == '[')
                readRow();
            else if (kind == '{')
                enterTable();
            else if (kind == '}')
                scope_ = {};
            else if (kind == '@')
                take('@'); // the mark of a transaction
            else
                take('\n'); // a comment
        }
    }

    std::unordered_map<std::string, bool> seen() const
    {
        constexpr unsigned read = 0x0001;
        constexpr unsigned expunged = 0x0008;
        std::unordered_map<std::string, bool> seen;
        for (const auto &[id, row] : rows_) {
            const auto &[flags, identifier] = row;
            unsigned bits = 0;
            std::from_chars(flags.data(), flags.data() + flags.size(), bits, 16);
            if (!flags.empty() && !identifier.empty())
                seen[identifier] = (bits & (read | expunged)) != 0;
        }
        return seen;
    }

private:
    bool skipTo(std::string_view characters)
    {
        rest_.remove_prefix(std::min(rest_.find_first_of(characters), rest_.size()));
        return !rest_.empty();
    }

    /// All before the next `end` that is not protected, which goes as well.
    std::string_view take(char end)
    {
        std::size_t at = 0;
        while (at < rest_.size() && rest_[at] != end)
            at += rest_[at] == '\\' ? 2 : 1;
        const auto taken = rest_.substr(0, at);
        rest_.remove_prefix(std::min(at + 1, rest_.size()));
        return taken;
    }

    void readDictionary()
    {
        bool isOfColumns = false;
        while (skipTo("(<>/")) {
            const char kind = rest_.front();
            rest_.remove_prefix(1);
            if (kind == '>')
                return;
            if (kind == '<')
                isOfColumns = take('>').find("a=c") != std::string_view::npos;
            else if (kind == '/')
                take('\n');
            else
                readEntry(take(')'), isOfColumns);
        }
    }

    void readEntry(std::string_view entry, bool isOfColumns)
    {
        const auto equals = entry.find('=');
        if (equals == std::string_view::npos)
            return;
        const std::string id(entry.substr(0, equals));
        const auto text = entry.substr(equals + 1);
        if (isOfColumns)
            columns_[id] = text;
        else
            values_[id] = text;
    }

    void enterTable()
    {
        const auto head = rest_.substr(0, rest_.find_first_of("{[(<}"));
        rest_.remove_prefix(head.size());
        const auto colon = head.find(':');
        scope_ = colon == std::string_view::npos ? std::string_view() : wordAt(head, colon);
        if (!rest_.starts_with('{'))
            return;
        rest_.remove_prefix(1); // what the table is, and its own row
        while (skipTo("(}")) {
            const char kind = rest_.front();
            rest_.remove_prefix(1);
            if (kind == '}')
                return;
            take(')');
        }
    }

    static std::string_view wordAt(std::string_view text, std::size_t at)
    {
        return text.substr(at, text.find_first_of(" \r\n\t", at) - at);
    }

    void readRow()
    {
        auto head = rest_.substr(0, rest_.find_first_of("(]["));
        rest_.remove_prefix(head.size());
        const bool isNew = head.starts_with('-'); // what it had is gone
        head.remove_prefix(isNew ? 1 : 0);
        std::string id(wordAt(head, 0));
        if (id.find(':') == std::string::npos)
            id += scope_;
        std::array<std::string, Columns> told;
        while (skipTo("(]") && rest_.front() == '(') {
            rest_.remove_prefix(1);
            readCell(take(')'), told);
        }
        rest_.remove_prefix(std::min<std::size_t>(1, rest_.size()));
        auto &row = rows_[id];
        for (std::size_t column = 0; column < Columns; ++column) {
            if (isNew || !told.at(column).empty())
                row.at(column) = told.at(column);
        }
    }

    void readCell(std::string_view cell, std::array<std::string, Columns> &told) const
    {
        const auto middle = cell.find_first_of("^=", 1);
        if (middle == std::string_view::npos)
            return;
        auto name = cell.substr(0, middle);
        auto value = cell.substr(middle + 1);
        if (name.starts_with('^'))
            name = textOf(columns_, name.substr(1));
        if (cell[middle] == '^')
            value = textOf(values_, value);
        for (std::size_t column = 0; column < Columns; ++column) {
            if (name == columnNames.at(column))
                told.at(column) = plain(value);
        }
    }

    using Texts = std::unordered_map<std::string, std::string_view>;

    static std::string_view textOf(const Texts &texts, std::string_view id)
    {
        const auto found = texts.find(std::string(id.substr(0, id.find(':'))));
        return found == texts.end() ? std::string_view() : found->second;
    }

    std::string_view rest_;
    std::string_view scope_; ///< that of the rows of the table at hand, with its colon
    Texts columns_;
    Texts values_;
    std::unordered_map<std::string, std::array<std::string, Columns>> rows_;
};

} // namespace

std::optional<MorkFlags> MorkFlags::read(const std::string &path)
{
    const auto bytes = readFile(path, largestIndex);
    if (!bytes || !bytes->starts_with(magic))
        return std::nullopt;
    Reader reader(std::string_view(*bytes).substr(magic.size()));
    reader.run();
    MorkFlags flags;
    flags.seen_ = reader.seen();
    return flags;
}

std::optional<bool> MorkFlags::isSeen(const std::string &id) const
{
    const auto found = seen_.find(id);
    return found == seen_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quillmere
