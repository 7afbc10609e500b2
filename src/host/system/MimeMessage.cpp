#include "host/system/MimeMessage.h"

#include "base/Utf8.h"

#include <gmime/gmime.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <list>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace tempodial {

namespace {

/// No line of an encoded part can hold "=_", so the boundaries need no chance to be unique.
constexpr auto Boundary = "=_Tempodial_1.2";
constexpr auto BodyBoundary = "=_Tempodial_Body_1.2";
/// Characters of a piece of an encoded parameter; with its name a piece stays within 78.
constexpr std::size_t LongestPiece = 54;

struct Unref
{
    void operator()(void* object) const { g_object_unref(object); }
};

template <class Object> using Owned = std::unique_ptr<Object, Unref>;

/// A text as the value of a header: nothing in it can end the header.
std::string HeaderText(std::string_view text)
{
    std::string out(text);
    std::replace_if(
        out.begin(), out.end(), [](unsigned char byte) { return byte < 0x20 || byte == 0x7f; }, ' ');
    return out;
}

/// The percent-encoded form of each character of a UTF-8 text, for a parameter.
std::vector<std::string> EncodedCharacters(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::vector<std::string> characters;
    for (const unsigned char byte : text) {
        if (!IsUtf8Tail(static_cast<char>(byte)) || characters.empty()) {
            characters.emplace_back();
        }
        if (g_ascii_isalnum(static_cast<char>(byte)) || std::string_view("-._").find(static_cast<char>(byte)) < 3) {
            characters.back() += static_cast<char>(byte);
        } else {
            characters.back().append({ '%', digits[byte >> 4U], digits[byte & 0x0fU] });
        }
    }
    return characters;
}

/// The disposition of an attachment. The name is cut into pieces at characters: GMime cuts at bytes, and then some
/// programs can't read it.
std::string Disposition(std::string_view name)
{
    std::string value = " attachment";
    std::string piece = "UTF-8''";
    int count = 0;
    const auto end = [&] {
        value += ";\n filename*" + std::to_string(count++) + "*=" + piece;
        piece.clear();
    };
    for (const auto& character : EncodedCharacters(HeaderText(name))) {
        if (piece.size() + character.size() > LongestPiece) {
            end();
        }
        piece += character;
    }
    end();
    return value + "\n";
}

/// A part of the message. The content isn't copied, so it has to outlive the part.
class Part
{
public:
    Part(const std::string& content, const std::string& type, GMimeContentEncoding encoding)
        : mView { reinterpret_cast<guint8*>(const_cast<char*>(content.data())), static_cast<guint>(content.size()) }
        , mPart(g_mime_part_new())
    {
        const Owned<GMimeStream> stream(g_mime_stream_mem_new_with_byte_array(&mView));
        g_mime_stream_mem_set_owner(GMIME_STREAM_MEM(stream.get()), FALSE);
        const Owned<GMimeDataWrapper> wrapper(
            g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
        const Owned<GMimeContentType> contentType(g_mime_content_type_parse(nullptr, HeaderText(type).c_str()));
        g_mime_object_set_content_type(Object(), contentType.get());
        g_mime_part_set_content_encoding(mPart.get(), encoding);
        g_mime_part_set_content(mPart.get(), wrapper.get());
    }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    GMimeObject* Object() const { return GMIME_OBJECT(mPart.get()); }
    void Attach(std::string_view name)
    {
        g_mime_object_set_disposition(Object(), GMIME_DISPOSITION_ATTACHMENT);
        auto* headers = g_mime_object_get_header_list(Object());
        auto* header = g_mime_header_list_get_header(headers, "Content-Disposition");
        g_mime_header_set_raw_value(header, Disposition(name).c_str());
    }

private:
    GByteArray mView;
    Owned<GMimePart> mPart;
};

Owned<GMimeMessage> MessageOf(const MailDraft& draft, GMimeObject* content)
{
    Owned<GMimeMessage> message(g_mime_message_new(FALSE));
    // Mail programs open a message with this mark for sending. Date and identity come when it is sent.
    g_mime_object_set_header(GMIME_OBJECT(message.get()), "X-Unsent", "1", "UTF-8");
    g_mime_message_set_subject(message.get(), HeaderText(draft.subject).c_str(), "UTF-8");
    for (const auto& address : draft.recipients) {
        g_mime_message_add_mailbox(message.get(), GMIME_ADDRESS_TYPE_TO, nullptr, HeaderText(address).c_str());
    }
    g_mime_message_set_mime_part(message.get(), content);
    return message;
}

int Write(GMimeMessage* message, int descriptor)
{
    const int copy = ::dup(descriptor);
    if (copy < 0) {
        return errno;
    }
    const Owned<GMimeStream> file(g_mime_stream_fs_new(copy));
    const Owned<GMimeStream> buffered(g_mime_stream_buffer_new(file.get(), GMIME_STREAM_BUFFER_BLOCK_WRITE));
    const std::unique_ptr<GMimeFormatOptions, decltype(&g_mime_format_options_free)> options(
        g_mime_format_options_new(), &g_mime_format_options_free);
    g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
    errno = 0;
    const bool isWritten = g_mime_object_write_to_stream(GMIME_OBJECT(message), options.get(), buffered.get()) >= 0
        && g_mime_stream_flush(buffered.get()) == 0;
    return isWritten ? 0 : errno != 0 ? errno : EIO;
}

Owned<GMimeMultipart> Multipart(const char* kind, const char* boundary)
{
    Owned<GMimeMultipart> parts(g_mime_multipart_new_with_subtype(kind));
    g_mime_multipart_set_boundary(parts.get(), boundary);
    return parts;
}

int WriteDraft(const MailDraft& draft, const std::string& plainText, int descriptor)
{
    static const bool isReady = (g_mime_init(), true);
    static_cast<void>(isReady);

    const Part plain(
        draft.isHtml ? plainText : draft.body, "text/plain; charset=utf-8", GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
    const Part page(draft.body, "text/html; charset=utf-8", GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
    // Readers show the last of the forms that they know.
    const auto both = Multipart("alternative", BodyBoundary);
    g_mime_multipart_add(both.get(), plain.Object());
    g_mime_multipart_add(both.get(), page.Object());
    auto* const body = !draft.isHtml ? plain.Object() : plainText.empty() ? page.Object() : GMIME_OBJECT(both.get());
    if (draft.attachments.empty()) {
        return Write(MessageOf(draft, body).get(), descriptor);
    }
    const auto parts = Multipart("mixed", Boundary);
    g_mime_multipart_add(parts.get(), body);
    std::list<Part> attachments;
    for (const auto& attachment : draft.attachments) {
        const auto known = attachment.type.empty() ? std::string("application/octet-stream") : attachment.type;
        auto& part = attachments.emplace_back(attachment.content, known, GMIME_CONTENT_ENCODING_BASE64);
        part.Attach(attachment.name);
        g_mime_multipart_add(parts.get(), part.Object());
    }
    return Write(MessageOf(draft, GMIME_OBJECT(parts.get())).get(), descriptor);
}

/// GMime counts the bytes of a part in 32 bits.
bool IsTooLarge(const std::string& content)
{
    return content.size() > std::numeric_limits<guint>::max();
}

}

}

extern "C" __attribute__((visibility("default"))) int TempodialWriteMimeMessage(
    const tempodial::MailDraft& draft, const std::string& plainText, int descriptor)
{
    try {
        const bool isTooLarge = tempodial::IsTooLarge(draft.body) || tempodial::IsTooLarge(plainText)
            || std::any_of(draft.attachments.begin(), draft.attachments.end(),
                [](const auto& attachment) { return tempodial::IsTooLarge(attachment.content); });
        return isTooLarge ? EFBIG : tempodial::WriteDraft(draft, plainText, descriptor);
    } catch (const std::bad_alloc&) {
        return ENOMEM;
    }
}

static_assert(std::is_same_v<decltype(&TempodialWriteMimeMessage), tempodial::MimeMessageWriter>);
