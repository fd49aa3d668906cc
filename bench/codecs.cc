// Codecs and transcoders, on texts of several sizes.
#include <apr_encode.h>
#include <iconv.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/transcode.h>
#include "bench.h"

namespace bench {
namespace {

using qk::text::transcode;

// `out` is large enough; what returns a text replaces it.
using Codec = bool (*)(const std::string& in, std::string& out);

const unsigned char* octets(const std::string& bytes) {
  return reinterpret_cast<const unsigned char*>(bytes.data());
}

unsigned char* octets(std::string& bytes) {
  return reinterpret_cast<unsigned char*>(bytes.data());
}

apr_ssize_t size_of(const std::string& bytes) {
  return static_cast<apr_ssize_t>(bytes.size());
}

bool openssl_encode_base64(const std::string& bytes, std::string& out) {
  return EVP_EncodeBlock(octets(out), octets(bytes),
                         static_cast<int>(bytes.size())) > 0;
}

bool openssl_decode_base64(const std::string& text, std::string& out) {
  return EVP_DecodeBlock(octets(out), octets(text),
                         static_cast<int>(text.size())) > 0;
}

bool openssl_encode_base16(const std::string& bytes, std::string& out) {
  std::size_t size = 0;
  return OPENSSL_buf2hexstr_ex(out.data(), out.size(), &size, octets(bytes),
                               bytes.size(), '\0') == 1;
}

template <auto decode>
bool apr_decode(const std::string& text, std::string& out) {
  apr_size_t size = 0;
  return decode(octets(out), text.data(), size_of(text), APR_ENCODE_NONE,
                &size) == APR_SUCCESS;
}

bool apr_encode_base32(const std::string& bytes, std::string& out) {
  apr_size_t size = 0;
  return apr_encode_base32_binary(out.data(), octets(bytes), size_of(bytes),
                                  APR_ENCODE_NOPADDING, &size) == APR_SUCCESS;
}

bool encode64(const std::string& in, std::string& out) {
  auto size = static_cast<unsigned>(out.size());
  return base64_encode(out.data(), &size, octets(in),
                       static_cast<unsigned>(in.size())) == 0;
}

bool decode64(const std::string& in, std::string& out) {
  auto size = static_cast<unsigned>(out.size());
  return base64_decode(octets(out), &size, in.data(),
                       static_cast<unsigned>(in.size())) == 0;
}

template <auto encode>
bool encode_to(const std::string& in, std::string& out) {
  out = encode(in.data(), in.size());
  return true;
}

template <auto decode>
bool decode_to(const std::string& in, std::string& out) {
  return decode(in.data(), in.size(), out);
}

void measure_codec(std::size_t size, const std::string& workload,
                   const std::string& in, Codec ours, const char* peer,
                   Codec theirs) {
  const std::string row = workload + "/" + std::to_string(size) + " B";
  const auto run = [&](const char* contender, Codec codec) {
    measure(row, contender,
            [codec, in, out = std::string(2 * in.size() + 8, '\0')]() mutable {
              return codec(in, out);
            });
  };
  run("ours", ours);
  run(peer, theirs);
}

// Opens a converter, runs it once and closes it.
bool iconv_once(const char* to, const char* from, const void* text,
                std::size_t size, std::string& out) {
  iconv_t converter = iconv_open(to, from);
  char* input = const_cast<char*>(static_cast<const char*>(text));
  char* output = out.data();
  std::size_t left = out.size();
  const std::size_t result = iconv(converter, &input, &size, &output, &left);
  iconv_close(converter);
  return result != static_cast<std::size_t>(-1);
}

template <typename Unit, typename Ours>
void measure_conversion(const std::string& workload,
                        const std::basic_string<Unit>& text, Ours ours,
                        const char* to, const char* from) {
  constexpr std::size_t kMostBytesEach = 4;
  const std::string row =
      workload + "/" + std::to_string(text.size()) + " units";
  std::string out(kMostBytesEach * (text.size() + 1), '\0');
  measure(row, "ours", [ours, text]() mutable { return ours(text); });
  measure(row, "iconv", [to, from, text, out]() mutable {
    return iconv_once(to, from, text.data(), text.size() * sizeof(Unit), out);
  });
}

// Into a string that is reused.
template <typename In, typename Out>
auto into(void (*ours)(const In*, unsigned, std::basic_string<Out>&)) {
  return [ours, out = std::basic_string<Out>()](
             const std::basic_string<In>& in) mutable {
    ours(in.data(), static_cast<unsigned>(in.size()), out);
    return out.data();
  };
}

void measure_transcoders(std::size_t times) {
  const auto chinese = repeated<wchar_t>(L"My\u4E2D\u6587 file.\u540D", times);
  const auto western = repeated<wchar_t>(L"caf\u00E9 na\u00EFve", times);
  const auto utf8 = repeated<char>(u8"My\u4E2D\u6587 file.\u540D", times);
  const auto gbk = repeated<char>("My\xD6\xD0\xCE\xC4 file.\xC3\xFB", times);
  const auto ansi = repeated<char>("caf\xE9 na\xEFve", times);
  const auto run = [](const char* name, const auto& text, auto ours,
                      const char* to, const char* from) {
    measure_conversion(name, text, into(ours), to, from);
  };
  run("Unicode_to_UTF8", chinese, transcode::Unicode_to_UTF8, "UTF-8",
      "WCHAR_T");
  run("UTF8_to_Unicode", utf8, transcode::UTF8_to_Unicode, "WCHAR_T", "UTF-8");
  run("GBK_to_UTF8", gbk, transcode::GBK_to_UTF8, "UTF-8", "GBK");
  run("UTF8_to_GBK", utf8, transcode::UTF8_to_GBK, "GBK", "UTF-8");
  run("Unicode_to_GBK", chinese, transcode::Unicode_to_GBK, "GBK", "WCHAR_T");
  run("GBK_to_Unicode", gbk, transcode::GBK_to_Unicode, "WCHAR_T", "GBK");
  run("Unicode_to_ANSI", western, transcode::Unicode_to_ANSI, "MS-ANSI",
      "WCHAR_T");
  run("ANSI_to_Unicode", ansi, transcode::ANSI_to_Unicode, "WCHAR_T",
      "MS-ANSI");
}

void measure_host(std::size_t size) {
  const std::string narrow(size, 'a');
  const std::wstring wide(size, L'a');
  const auto from_gbk = [](const std::string& bytes) {
    return string_to_wstring_with_code_page(bytes, 936);
  };
  const auto run = [](auto... arguments) { measure_conversion(arguments...); };
  run("wstring_2_string", wide, wstring_2_string, "UTF-8", "WCHAR_T");
  run("wstring_2_utf8", wide, wstring_2_utf8, "UTF-8", "WCHAR_T");
  run("string_2_wstring", narrow, string_2_wstring, "WCHAR_T", "UTF-8");
  run("string_to_wstring_with_code_page", narrow, from_gbk, "WCHAR_T", "GBK");
}

}  // namespace

void register_codecs() {
  for (const std::size_t size : {16, 100, 2048, 65536}) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {  // without a pattern
      bytes[i] = static_cast<char>(i * i * 2654435761U >> 16);
    }
    const auto run = [size](auto... arguments) {
      measure_codec(size, arguments...);
    };
    run("base64_encode", bytes, encode64, "OpenSSL", openssl_encode_base64);
    if (size == 16) continue;
    std::string base64;
    qk::crypto::base64::encode(bytes, base64);
    run("base64_decode", base64, decode64, "OpenSSL", openssl_decode_base64);
    run("encode_base16", bytes, encode_to<encode_base16>, "OpenSSL",
        openssl_encode_base16);
    run("decode_base16", encode_base16(bytes.data(), size),
        decode_to<decode_base16>, "APR", apr_decode<apr_decode_base16_binary>);
    run("encode_base32", bytes, encode_to<encode_base32>, "APR",
        apr_encode_base32);
    run("decode_base32", encode_base32(bytes.data(), size),
        decode_to<decode_base32>, "APR", apr_decode<apr_decode_base32_binary>);
  }
  for (const std::size_t times : {2, 10, 100}) measure_transcoders(times);
  for (const std::size_t size : {16, 100}) measure_host(size);
}

}  // namespace bench
