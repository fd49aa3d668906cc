// The peers behind plain functions. Each does the nearest equal work, said with
// it in a line, on text in the form that it takes and into memory that is
// reused wherever its interface lets that be done. The answer is whether it
// took the input.
#ifndef KORVANE_BENCH_PEERS_PEERS_H_
#define KORVANE_BENCH_PEERS_PEERS_H_

#include <cstddef>
#include <string>

namespace peers {

// --- URLs

// Finds where the parts begin and end; copies and decodes nothing.
bool http_parser_offsets(const std::string& url);

// Checks the whole grammar and gives views; user and password are decoded.
bool boost_url(const std::string& url);

// Checks the whole grammar of wide text and gives ranges; decodes nothing.
bool uriparser_ranges(const std::wstring& url);

// Fills a handle and gives each part as a new text; user and password decoded.
bool curl_parts(const std::string& url);

// Gives each part as a new text; user and password decoded.
bool glib_parts(const std::string& url);

// The URL parsed, its last segment decoded to bytes.
bool boost_file_name(const std::string& url);

// The last segment cut out of the URL and decoded to bytes, nothing parsed.
bool curl_file_name(const std::string& url);

// --- Links

// All fields, as one new set of parameters for a download.
bool libtorrent_magnet(const std::string& link);

// Split at "|", the name unescaped, the size and the hash read.
bool glib_ed2k(const std::string& link);

// --- Codecs. `out` has room.

bool openssl_encode_base64(const std::string& bytes, std::string& out);
bool openssl_decode_base64(const std::string& text, std::string& out);
bool openssl_encode_base16(const std::string& bytes, std::string& out);
bool apr_decode_base16(const std::string& text, std::string& out);
bool apr_encode_base32(const std::string& bytes, std::string& out);
bool apr_decode_base32(const std::string& text, std::string& out);

// Escapes decoded into a new text.
bool curl_unescape(const std::string& text);

// --- Text

// A converter opened, run once into `room` and closed.
bool raw_iconv(const char* to, const char* from, const void* text,
               std::size_t size, std::string& room);

}  // namespace peers

#endif  // KORVANE_BENCH_PEERS_PEERS_H_
