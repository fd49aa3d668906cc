// The small string functions, against their rules told another way.
#include <korvane/xstringutil.h>

#include <algorithm>
#include <limits>

#include "fuzz.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
using Text = std::string;
constexpr std::size_t kNowhere = Text::npos;

void check_ends(const Text& text, const Text& part) {
  const ExactCopy narrow{std::string_view(text)};
  const std::wstring wide_text(text.begin(), text.end());
  const ExactCopy wide{std::wstring_view(wide_text)};
  const auto size = static_cast<unsigned>(text.size());
  const Text reversed(text.rbegin(), text.rend());
  const Text reversed_part(part.rbegin(), part.rend());
  const bool ends = reversed.rfind(reversed_part, 0) == 0;
  require(
      xstringutil::IsBeginWith(wide.data(), size, {part.begin(), part.end()}) ==
          (text.rfind(part, 0) == 0),
      "the beginning");
  require(xstringutil::IsEndWith(narrow.data(), size, part) == ends, "the end");
  Text cut = text;
  xstringutil::TrimRight(cut, part);
  require_equal(ends ? text.substr(0, text.size() - part.size()) : text, cut,
                "a suffix is cut once");
}

void check_trims(const Text& text) {
  Text left = text;
  Text right = text;
  xstringutil::TrimLeft(left);
  xstringutil::TrimRight(right);
  Text want = text;
  while (!want.empty() && Text(" \t").find(want.front()) != kNowhere) {
    want.erase(0, 1);
  }
  require_equal(want, left, "trimmed on the left");
  want = text;
  while (!want.empty() && Text(" \t").find(want.back()) != kNowhere) {
    want.pop_back();
  }
  require_equal(want, right, "trimmed on the right");
}

void check_splits(const Text& text) {
  Text dir = "?";
  Text file = "?";
  xstringutil::SplitNetPathFile(text, dir, file);
  const std::size_t slash = text.rfind('/');
  require_equal(slash == kNowhere ? "?" : text.substr(0, slash + 1), dir,
                "dir");
  const bool is_dir = slash != kNowhere && slash + 1 == text.size();
  require_equal(is_dir ? "?" : text.substr(slash + 1), file, "file");
  Text base = "?";
  Text ext = "?";
  xstringutil::SplitFileName(text, base, ext);
  const std::size_t dot = text.rfind('.');
  require_equal(text.substr(0, dot), base, "base");
  const bool has_ext = dot != kNowhere && dot + 1 != text.size();
  require_equal(has_ext ? text.substr(dot + 1) : "?", ext, "ext");
  const ExactCopy copy{std::string_view(text)};
  Text line = "?";
  const std::size_t feed = text.find('\n');
  const int size = feed == kNowhere ? 0 : static_cast<int>(feed) + 1;
  require_equal(
      size,
      xstringutil::GetLine(copy.data(), static_cast<int>(text.size()), line),
      "GetLine");
  require_equal(size == 0 ? "?" : text.substr(0, feed + 1), line, "the line");
  require(xstringutil::IsValidWindowsFileName(text) ==
              (!text.empty() && text.size() <= 215 &&
               text.find_first_of("\\/:*?\"<>|") == kNowhere),
          "a valid name");
}

void check_number(const Text& text) {
  const Text digits = text.substr(!text.empty() && text[0] == '-' ? 1 : 0);
  const bool is_number =
      !text.empty() && digits.find_first_not_of("0123456789") == kNowhere;
  std::uint64_t sum = 0;  // wraps
  for (const char digit : is_number ? digits : "") {
    sum = sum * 10 + static_cast<unsigned>(digit - '0');
  }
  if (digits.size() != text.size()) sum = 0 - sum;
  const long long want = is_number ? static_cast<long long>(sum) : 77;
  long long got = 77;
  require(xstringutil::StringToInt64(text, got) == is_number, "a number");
  require_equal(want, got, "the number");
  if (got == std::numeric_limits<long long>::min()) return;
  require_equal(std::to_string(got), xstringutil::Int64ToString(got), "text");
}

void check_dumps(const Text& text, const Text& separator) {
  const ExactCopy copy{std::string_view(text)};
  const int size = static_cast<int>(text.size());
  const Text hex = xstringutil::DataToHexString(copy.data(), size, separator);
  const Text bits = xstringutil::Data2BitString(copy.data(), 8 * size);
  Text want_hex;
  Text want_bits;
  for (const char byte : text) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", qk::text::code_of(byte));
    want_hex += digits + separator;
    for (unsigned bit = 128; bit != 0; bit /= 2) {
      want_bits += (qk::text::code_of(byte) & bit) != 0 ? '1' : '0';
    }
  }
  require_equal(want_hex, hex, "digits");
  require_equal(want_bits, bits, "bits");
  const int some = 8 * size - size % 8;
  require_equal(want_bits.substr(0, static_cast<std::size_t>(some)),
                xstringutil::Data2BitString(copy.data(), some), "some bits");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const Text part = input.bytes_until('|');
  const Text text = input.bytes();
  check_ends(text, part);
  check_trims(text);
  check_splits(text);
  check_number(text);
  check_dumps(text, part);
  return 0;
}
