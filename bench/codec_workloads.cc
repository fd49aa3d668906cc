#include <algorithm>

#include <korvane/encoders.h>
#include <korvane/korvane_links.h>
#include "peers/peers.h"
#include "workloads.h"

namespace bench {
namespace {

template <typename Ours, typename Theirs>
void compare(const Table& table, const std::string& function, std::size_t size,
             Ours ours, const std::string& rival, Theirs theirs, double goal) {
  table.compare(function + ", " + std::to_string(size) + " B",
                repeating(function, ours), {{repeating(rival, theirs), goal}});
}

void compare_base64_encode(const Table& table, std::size_t size, double goal) {
  const std::string bytes = random_bytes(size);
  std::string room(2 * size + 8, '\0');
  compare(
      table, "base64_encode", size,
      [&] {
        auto length = static_cast<unsigned>(room.size());
        return ::base64_encode(
            room.data(), &length,
            reinterpret_cast<const unsigned char*>(bytes.data()),
            static_cast<unsigned>(bytes.size()));
      },
      "OpenSSL", [&] { return peers::openssl_encode_base64(bytes, room); },
      goal);
}

void compare_base64_decode(const Table& table, std::size_t size, double goal) {
  const std::string bytes = random_bytes(size);
  std::string text(2 * size + 8, '\0');
  peers::openssl_encode_base64(bytes, text);
  text.resize(text.find('\0'));
  std::string room(size + 8, '\0');
  compare(
      table, "base64_decode", size,
      [&] {
        auto length = static_cast<unsigned>(room.size());
        return ::base64_decode(reinterpret_cast<unsigned char*>(room.data()),
                               &length, text.data(),
                               static_cast<unsigned>(text.size()));
      },
      "OpenSSL", [&] { return peers::openssl_decode_base64(text, room); },
      goal);
}

void compare_base16(const Table& table, std::size_t size) {
  const std::string bytes = random_bytes(size);
  const std::string text = encode_base16(bytes.data(), bytes.size());
  std::string room(2 * size + 8, '\0');
  std::string out;
  compare(
      table, "encode_base16", size,
      [&] { return encode_base16(bytes.data(), bytes.size()); }, "OpenSSL",
      [&] { return peers::openssl_encode_base16(bytes, room); }, 0.70);
  compare(
      table, "decode_base16", size,
      [&] { return decode_base16(text.data(), text.size(), out); }, "APR",
      [&] { return peers::apr_decode_base16(text, room); }, 0.55);
}

void compare_base32(const Table& table, std::size_t size) {
  const std::string bytes = random_bytes(size);
  const std::string text = encode_base32(bytes.data(), bytes.size());
  std::string room(2 * size + 8, '\0');
  std::string out;
  compare(
      table, "encode_base32", size,
      [&] { return encode_base32(bytes.data(), bytes.size()); }, "APR",
      [&] { return peers::apr_encode_base32(bytes, room); }, 0.85);
  compare(
      table, "decode_base32", size,
      [&] { return decode_base32(text.data(), text.size(), out); }, "APR",
      [&] { return peers::apr_decode_base32(text, room); }, 0.75);
}

void compare_decode_url(const Table& table) {
  const Texts texts = downloads();
  std::string out;
  const auto each = [&texts](auto read) {
    return [&texts, read] {
      for (const Text& text : texts) keep(read(text.narrow));
    };
  };
  table.compare(
      "decode_url, download",
      {"decode_url", texts.size(), each([&out](const std::string& text) {
         return decode_url(text.data(), text.size(), out);
       })},
      {{{"libcurl", texts.size(), each(peers::curl_unescape)}, 0.65}});
}

}  // namespace

void run_codecs(const Table& table) {
  constexpr std::size_t kSmall = 100;
  constexpr std::size_t kMiddle = 2048;
  constexpr std::size_t kLarge = 65536;
  compare_base64_encode(table, 16, 0.90);
  for (const std::size_t size : {kSmall, kMiddle, kLarge}) {
    compare_base64_encode(table, size, 0.70);
  }
  compare_base64_decode(table, kSmall, 1.5);
  for (const std::size_t size : {kMiddle, kLarge}) {
    compare_base64_decode(table, size, 1.2);
  }
  compare_base16(table, kMiddle);
  for (const std::size_t size : {kSmall, kMiddle, kLarge}) {
    compare_base32(table, size);
  }
  compare_decode_url(table);
}

}  // namespace bench
