#include "inputs.h"

#include <cstdint>
#include <fstream>
#include <random>

#include "text/utf8.h"

namespace bench {
namespace {

constexpr std::size_t kTexts = 500;

// Draws the same in every run and with every standard library.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}

  // 0 to `sides` - 1.
  unsigned roll(unsigned sides) {
    return static_cast<unsigned>(engine_() % sides);
  }
  std::string number(unsigned sides) { return std::to_string(roll(sides)); }
  template <std::size_t size>
  std::string pick(const std::string_view (&choices)[size]) {
    return std::string(choices[roll(size)]);
  }
  std::string digits(std::string_view alphabet, std::size_t size) {
    std::string text(size, '\0');
    for (char& unit : text) {
      unit = alphabet[roll(static_cast<unsigned>(alphabet.size()))];
    }
    return text;
  }

 private:
  std::mt19937 engine_;
};

constexpr std::string_view kHex = "0123456789abcdef";
constexpr std::string_view kBase32 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
constexpr std::string_view kSchemes[] = {"http://", "https://"};
constexpr std::string_view kHosts[] = {"www.example", "news.site", "a.shop"};
constexpr std::string_view kDomains[] = {".com", ".org", ".net"};
constexpr std::string_view kFolders[] = {"/news/", "/article/", "/shop/items/"};
constexpr std::string_view kWords[] = {"Summer",  "Holiday", "Release",
                                       "Project", "Annual",  "Collection"};
constexpr std::string_view kForeignWords[] = {"caf%C3%A9", "%E4%B8%AD%E6%96%87",
                                              "%D0%9C%D0%B8%D1%80"};
constexpr std::string_view kTypes[] = {".zip", ".tar.gz", ".iso", ".mp4"};
constexpr std::string_view kUsers[] = {"mary", "j.smith", "guest%20one"};
constexpr std::string_view kPasswords[] = {"secret", "p%40ss"};
constexpr std::string_view kTrackers[] = {
    "udp%3A%2F%2Ftracker.example.org%3A6969%2Fannounce",
    "http%3A%2F%2Fopen.tracker.example.net%3A80%2Fannounce",
    "udp%3A%2F%2Fa.example.com%3A1337",
    "https%3A%2F%2Ftr.example.info%2Fx%2Fannounce"};

std::string host(Dice& dice) {
  return dice.pick(kHosts) + dice.number(1000) + dice.pick(kDomains);
}

// Escaped: several words, in one of four names one beyond ASCII.
std::string file_name(Dice& dice) {
  std::string name = dice.pick(kWords);
  for (unsigned i = 0; i < 3; ++i) name += "%20" + dice.pick(kWords);
  if (dice.roll(4) == 0) name += "%20" + dice.pick(kForeignWords);
  return name + "%20%28" + dice.number(100) + "%29" + dice.pick(kTypes);
}

template <typename Make>
Texts make_texts(unsigned seed, Make make) {
  Dice dice(seed);
  Texts texts;
  for (std::size_t i = 0; i < kTexts; ++i) {
    texts.push_back(make_text(make(dice)));
  }
  return texts;
}

}  // namespace

Text make_text(std::string narrow) {
  std::wstring wide;
  qk::text::decode_utf8(narrow, wide);
  return {std::move(narrow), std::move(wide)};
}

Texts plain_pages() {
  return make_texts(1, [](Dice& dice) {
    return dice.pick(kSchemes) + host(dice) + dice.pick(kFolders) + "page" +
           dice.number(10000) + ".html";
  });
}

Texts downloads() {
  return make_texts(2, [](Dice& dice) {
    return dice.pick(kSchemes) + "dl" + dice.number(10) + "." + host(dice) +
           ":8080/pub/" + dice.number(3000) + "/" + file_name(dice) +
           "?token=" + dice.digits(kHex, 24) + "&part=" + dice.number(10);
  });
}

Texts urls_with_user() {
  return make_texts(3, [](Dice& dice) {
    return "ftp://" + dice.pick(kUsers) + ":" + dice.pick(kPasswords) +
           dice.number(1000) + "@ftp." + host(dice) + ":2121/pub/" +
           dice.pick(kWords) + "-" + dice.number(1000) + dice.pick(kTypes);
  });
}

Texts magnet_links() {
  return make_texts(4, [](Dice& dice) {
    std::string link = "magnet:?xt=urn:btih:" + dice.digits(kHex, 40) +
                       "&dn=" + file_name(dice);
    for (unsigned left = 4 + dice.roll(3); left != 0; --left) {
      link += "&tr=" + dice.pick(kTrackers);
    }
    return link;
  });
}

Texts ed2k_links() {
  return make_texts(5, [](Dice& dice) {
    std::string link = "ed2k://|file|" + file_name(dice) + "|" +
                       dice.number(2'000'000'000) + "|" +
                       dice.digits(kHex, 32) + "|";
    if (dice.roll(2) == 0) link += "h=" + dice.digits(kBase32, 32) + "|";
    return link + "/";
  });
}

Texts read_lines(const std::string& path) {
  std::ifstream file(path);
  Texts texts;
  std::string line;
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) texts.push_back(make_text(line));
  }
  return texts;
}

std::string random_bytes(std::size_t size) {
  Dice dice(6);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(dice.roll(256));
  return bytes;
}

std::string repeated(std::string_view text, std::size_t size) {
  std::string result;
  while (result.size() < size) result += text;
  result.resize(size);
  return result;
}

}  // namespace bench
