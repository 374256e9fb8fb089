#include "helpers/MailMessage.h"

#include <gmime/gmime.h>

#include <memory>

namespace quillmere {

namespace {

constexpr std::size_t longestLine = 1'000; // bytes

struct Unreference {
    void operator()(void *object) const { ::g_object_unref(object); }
};
struct Free {
    void operator()(char *text) const { ::g_free(text); }
};
struct FreeOptions {
    void operator()(GMimeParserOptions *options) const { ::g_mime_parser_options_free(options); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Unreference>;
using Text = std::unique_ptr<char, Free>;

std::string oneLine(const char *text)
{
    if (text == nullptr)
        return {};
    const Text valid(::g_utf8_make_valid(text, -1));
    std::string line(valid.get());
    for (char &character : line) {
        if (static_cast<unsigned char>(character) < ' ' || character == '\x7f')
            character = ' ';
    }
    if (line.size() > longestLine) {
        const char *end = ::g_utf8_find_prev_char(line.c_str(), line.c_str() + longestLine);
        line.resize(static_cast<std::size_t>(end - line.c_str()));
    }
    const Text trimmed(::g_strdup(line.c_str()));
    return ::g_strstrip(trimmed.get());
}

std::string senderOf(GMimeMessage *message)
{
    InternetAddressList *list = ::g_mime_message_get_from(message);
    if (list == nullptr || ::internet_address_list_length(list) == 0)
        return {};
    const Text text(
        ::internet_address_to_string(::internet_address_list_get_address(list, 0), nullptr, FALSE));
    return oneLine(text.get());
}

} // namespace

MailHeader readMailHeader(const std::string &head)
{
    ::g_mime_init();
    const std::unique_ptr<GMimeParserOptions, FreeOptions> options(::g_mime_parser_options_new());
    const char *charsets[] = {"utf-8", "windows-1252", nullptr};
    ::g_mime_parser_options_set_fallback_charsets(options.get(), charsets);
    const Owned<GMimeStream> stream(::g_mime_stream_mem_new_with_buffer(head.data(), head.size()));
    const Owned<GMimeParser> parser(::g_mime_parser_new_with_stream(stream.get()));
    const Owned<GMimeMessage> message(
        ::g_mime_parser_construct_message(parser.get(), options.get()));
    if (!message)
        return {};
    return {oneLine(::g_mime_message_get_message_id(message.get())),
            oneLine(::g_mime_message_get_subject(message.get())), senderOf(message.get())};
}

} // namespace quillmere
