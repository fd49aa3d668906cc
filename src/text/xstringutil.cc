#include <korvane/xstringutil.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include "text/ascii.h"
#include "text/hex_digits.h"

namespace xstringutil {
namespace {

using qk::text::hex_value;
using qk::text::kLowerHexDigits;
using qk::text::kUpperHexDigits;

constexpr char kBlanks[] = " \t";
constexpr char kForbiddenInFileNames[] = "\\/:*?\"<>|";
constexpr std::size_t kLongestFileName = 215;
constexpr std::string_view kLettersAndDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

std::string_view bytes_of(const char* data, int len) {
  if (data == nullptr || len <= 0) return {};
  return {data, static_cast<std::size_t>(len)};
}

unsigned octet(char byte) { return static_cast<unsigned char>(byte); }

void append_digits(std::string& text, char byte, const char* digits) {
  text += digits[octet(byte) >> 4];
  text += digits[octet(byte) & 15];
}

// Percent-encodes all but letters, digits and the bytes of `unescaped`.
std::string escape(std::string_view bytes, std::string_view unescaped,
                   const char* digits) {
  std::string text;
  for (const char byte : bytes) {
    if (kLettersAndDigits.find(byte) != std::string_view::npos ||
        unescaped.find(byte) != std::string_view::npos) {
      text += byte;
    } else {
      text += '%';
      append_digits(text, byte, digits);
    }
  }
  return text;
}

}  // namespace

bool IsBeginWith(const wchar_t* text, unsigned text_len,
                 const std::wstring& prefix) {
  return text != nullptr && qk::text::begins_with({text, text_len}, prefix);
}

bool IsEndWith(const char* text, unsigned text_len, const std::string& suffix) {
  if (text == nullptr || suffix.size() > text_len) return false;
  const std::size_t start = text_len - suffix.size();
  return std::string_view(text + start, suffix.size()) == suffix;
}

int GetLine(const char* buf, int len, std::string& line) {
  const std::string_view bytes = bytes_of(buf, len);
  const std::size_t line_feed = bytes.find('\n');
  if (line_feed == std::string_view::npos) return 0;
  line = bytes.substr(0, line_feed + 1);
  return static_cast<int>(line_feed + 1);
}

std::string& TrimLeft(std::string& s) {
  return s.erase(0, s.find_first_not_of(kBlanks));
}

std::string& TrimRight(std::string& s) {
  const std::size_t last = s.find_last_not_of(kBlanks);
  return s.erase(last == std::string::npos ? 0 : last + 1);
}

std::string& TrimRight(std::string& s, const std::string& suffix) {
  if (suffix.size() > s.size()) return s;
  const std::size_t start = s.size() - suffix.size();
  if (s.compare(start, suffix.size(), suffix) == 0) s.erase(start);
  return s;
}

void SplitNetPathFile(const std::string& path, std::string& dir,
                      std::string& file) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) {
    file = path;
  } else if (slash + 1 == path.size()) {
    dir = path;
  } else {
    std::string rest = path.substr(slash + 1);
    dir = path.substr(0, slash + 1);
    file = std::move(rest);
  }
}

void SplitFileName(const std::string& name, std::string& base,
                   std::string& ext) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos) {
    base = name;
  } else if (dot + 1 == name.size()) {
    base = name.substr(0, dot);
  } else {
    std::string rest = name.substr(dot + 1);
    base = name.substr(0, dot);
    ext = std::move(rest);
  }
}

bool IsValidWindowsFileName(const std::string& name) {
  if (name.empty() || name.size() > kLongestFileName) return false;
  return name.find_first_of(kForbiddenInFileNames) == std::string::npos;
}

bool StringToInt64(const std::string& s, long long& value) {
  if (s.empty()) return false;
  const bool negative = s.front() == '-';
  long long sum = 0;
  for (std::size_t i = negative ? 1 : 0; i < s.size(); ++i) {
    if (s[i] < '0' || s[i] > '9') return false;
    // The built-ins wrap around without undefined behaviour.
    __builtin_mul_overflow(sum, 10, &sum);
    __builtin_add_overflow(sum, s[i] - '0', &sum);
  }
  if (negative) __builtin_sub_overflow(0, sum, &sum);
  value = sum;
  return true;
}

std::string Int64ToString(long long value) { return std::to_string(value); }

std::string Data2BitString(const char* data, int bit_count) {
  if (data == nullptr) return {};
  std::string bits;
  for (int i = 0; i < bit_count; ++i) {
    bits += (octet(data[i / 8]) << i % 8 & 0x80) != 0 ? '1' : '0';
  }
  return bits;
}

std::string DataToHexString(const char* data, int len,
                            const std::string& separator) {
  const std::string_view bytes = bytes_of(data, len);
  std::string text;
  for (const char byte : bytes) {
    append_digits(text, byte, kLowerHexDigits);
    text += separator;
  }
  return text;
}

std::string EscapeString(const char* data, int len) {
  return escape(bytes_of(data, len), "", kUpperHexDigits);
}

std::string EscapePath(const char* data, int len) {
  return escape(bytes_of(data, len), "/-_.!~*()", kLowerHexDigits);
}

std::string UnescapeString(const std::string& s) {
  std::string text;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] != '%') {
      text += s[i] == '+' ? ' ' : s[i];
      continue;
    }
    if (s.size() - i < 3) return {};
    const unsigned high = hex_value(s[i + 1]);
    const unsigned low = hex_value(s[i + 2]);
    if (!qk::text::is_digit_value(high | low)) return {};
    text += static_cast<char>(high << 4 | low);
    i += 2;
  }
  return text;
}

}  // namespace xstringutil
