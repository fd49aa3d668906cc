#include <korvane/korvane_host.h>
#include <korvane/transcode.h>
#include "peers/peers.h"
#include "text/utf8.h"
#include "workloads.h"

namespace bench {
namespace {

using qk::text::transcode;

constexpr char kWide[] = "WCHAR_T";
constexpr char kUtf8[] = "UTF-8";
constexpr char kGbk[] = "GBK";
constexpr char kAnsi[] = "MS-ANSI";
constexpr std::size_t kMostBytesEach = 4;

template <typename Unit>
Contender raw(const char* to, const char* from,
              const std::basic_string<Unit>& text, std::string& room) {
  return repeating("iconv", [=, &text, &room] {
    return peers::raw_iconv(to, from, text.data(), text.size() * sizeof(Unit),
                            room);
  });
}

template <typename In, typename Out>
void compare_transcoder(const Table& table, const std::string& name,
                        void (*ours)(const In*, unsigned,
                                     std::basic_string<Out>&),
                        const std::basic_string<In>& text, const char* to,
                        const char* from) {
  std::basic_string<Out> out;
  std::string room(kMostBytesEach * (text.size() + 1), '\0');
  const auto run = [&] {
    ours(text.data(), static_cast<unsigned>(text.size()), out);
    return out.data();
  };
  constexpr double kGoal = 1.15;
  table.compare(name + ", " + std::to_string(text.size()) + " units",
                repeating(name, run), {{raw(to, from, text, room), kGoal}});
}

std::string utf8_of(const std::wstring& text) {
  std::string utf8;
  qk::text::encode_utf8(text, utf8);
  return utf8;
}

std::wstring repeated_wide(std::wstring_view text, std::size_t times) {
  std::wstring result;
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

// Ten characters of `wide` at a time, so that no character is cut in two.
void compare_transcoders(const Table& table, std::size_t times) {
  const std::wstring chinese =
      repeated_wide(L"My\x4E2D\x6587 file.\x540D", times);
  const std::wstring western = repeated_wide(L"caf\xE9 na\xEFve", times);
  const std::string utf8 = utf8_of(chinese);
  std::string gbk;
  transcode::UTF8_to_GBK(utf8.data(), static_cast<unsigned>(utf8.size()), gbk);
  std::string ansi;
  transcode::Unicode_to_ANSI(western.data(),
                             static_cast<unsigned>(western.size()), ansi);
  const auto compare = [&table](auto... arguments) {
    compare_transcoder(table, arguments...);
  };
  compare("Unicode_to_UTF8", transcode::Unicode_to_UTF8, chinese, kUtf8, kWide);
  compare("UTF8_to_Unicode", transcode::UTF8_to_Unicode, utf8, kWide, kUtf8);
  compare("GBK_to_UTF8", transcode::GBK_to_UTF8, gbk, kUtf8, kGbk);
  compare("UTF8_to_GBK", transcode::UTF8_to_GBK, utf8, kGbk, kUtf8);
  compare("Unicode_to_GBK", transcode::Unicode_to_GBK, chinese, kGbk, kWide);
  compare("GBK_to_Unicode", transcode::GBK_to_Unicode, gbk, kWide, kGbk);
  compare("Unicode_to_ANSI", transcode::Unicode_to_ANSI, western, kAnsi, kWide);
  compare("ANSI_to_Unicode", transcode::ANSI_to_Unicode, ansi, kWide, kAnsi);
}

template <typename Unit, typename Convert>
void compare_host(const Table& table, const std::string& name,
                  const std::basic_string<Unit>& text, Convert convert,
                  const char* to, const char* from, double goal) {
  std::string room(kMostBytesEach * (text.size() + 1), '\0');
  table.compare(name + ", " + std::to_string(text.size()) + " characters",
                repeating(name, [&] { return convert(text); }),
                {{raw(to, from, text, room), goal}});
}

void compare_host_conversions(const Table& table, std::size_t size,
                              double goal) {
  const Text text = make_text(repeated("A file's name.txt", size));
  compare_host(table, "wstring_2_string", text.wide, wstring_2_string, kUtf8,
               kWide, goal);
  compare_host(table, "wstring_2_utf8", text.wide, wstring_2_utf8, kUtf8, kWide,
               goal);
  compare_host(table, "string_2_wstring", text.narrow, string_2_wstring, kWide,
               kUtf8, goal);
  const auto from_gbk = [](const std::string& bytes) {
    return string_to_wstring_with_code_page(bytes, 936);
  };
  compare_host(table, "string_to_wstring_with_code_page", text.narrow, from_gbk,
               kWide, kGbk, goal);
}

}  // namespace

void run_conversions(const Table& table) {
  for (const std::size_t times : {2, 10, 100}) {
    compare_transcoders(table, times);
  }
  compare_host_conversions(table, 16, 0.10);
  compare_host_conversions(table, 100, 0.25);
}

}  // namespace bench
