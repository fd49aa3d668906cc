#include "url/url_file_name.h"

#include <algorithm>
#include <cctype>

#include <korvane/url_object.h>
#include "text/code_of.h"
#include "url/character_classes.h"

namespace qk::url {
namespace {

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kIndexName = L"index.html";
constexpr std::size_t kLongestSearchedName = 1023;

// In the order in which they are looked for.
constexpr std::wstring_view kExtensions[] = {
    L".msi",  L".asf", L".avi",  L".exe", L".iso", L".mp3",
    L".mpeg", L".mpg", L".mpga", L".ra",  L".rar", L".rm",
    L".rmvb", L".tar", L".wma",  L".wmp", L".wmv", L".zip"};

bool is_separator(wchar_t unit) { return unit == L'/' || unit == L'\\'; }

constexpr std::size_t kBlock = 8;

// Told by arithmetic alone: without a branch the compiler looks at several
// units at once, as the C library does in searches from the front.
bool has_separator(const wchar_t* block) {
  unsigned found = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    found |= static_cast<unsigned>(block[i] == L'/') |
             static_cast<unsigned>(block[i] == L'\\');
  }
  return found != 0;
}

std::size_t last_separator(std::wstring_view text) {
  std::size_t end = text.size();
  while (end >= kBlock && !has_separator(text.data() + end - kBlock)) {
    end -= kBlock;
  }
  while (end > 0 && !is_separator(text[end - 1])) --end;
  return end == 0 ? kNowhere : end - 1;
}

std::wstring_view behind(std::wstring_view text, std::size_t position) {
  return position == kNowhere ? text : text.substr(position + 1);
}

// The separator before the name: an address that the query carries as "url=" is
// what the URL leads to.
std::size_t file_position(std::wstring_view text) {
  if (text.find(L"url=") != kNowhere) return last_separator(text);
  return last_separator(text.substr(0, text.find(L'?')));
}

std::wstring_view without_trailing_blanks(std::wstring_view text) {
  while (!text.empty() && is_one_of(text.back(), kBlank)) text.remove_suffix(1);
  return text;
}

unsigned detected_code_page(const std::string& bytes, unsigned code_page) {
  if (!is_default_code_page(code_page)) return code_page;
  const unsigned detected =
      url_object::get_generally_codepage(bytes, 0xFFFFFFFF);
  return is_default_code_page(detected) ? kDefaultCodePage : detected;
}

bool is_illegal(wchar_t unit) { return is_one_of(unit, kIllegal); }

// The name within decoded text that holds separators or a query.
std::wstring_view cut_name(std::wstring_view text) {
  const std::size_t query = text.rfind(L'?');
  if (query == kNowhere) return last_segment(text);
  // Kept: the "?" itself stays, and becomes the name's last "_".
  text = text.substr(0, query + 1);
  const std::size_t separator = file_position(text);
  // Without a separator the text is the name, "&" and all.
  if (separator == kNowhere) return text;
  const std::wstring_view name = text.substr(separator + 1);
  return name.substr(0, name.find(L'&'));
}

std::wstring_view without_leading_illegal(std::wstring_view name) {
  while (!name.empty() && is_illegal(name.front())) name.remove_prefix(1);
  return name;
}

bool ends_word(std::wstring_view text, std::size_t position) {
  if (position == text.size() || text[position] == L',') return true;
  const std::uint32_t code = text::code_of(text[position]);
  return code < 256 && std::isspace(static_cast<int>(code)) != 0;
}

bool is_word_unit(wchar_t unit) {
  return is_letter(unit) || is_decimal(unit) || unit == L'$' || unit == L'-';
}

std::size_t find_extension(std::wstring_view text,
                           std::wstring_view extension) {
  const std::size_t found = text.find(extension);
  if (found != kNowhere) return found;
  return text.find(make_upper(std::wstring(extension)));
}

std::wstring_view word_with(std::wstring_view text,
                            std::wstring_view extension) {
  const std::size_t dot = find_extension(text, extension);
  if (dot == kNowhere) return {};
  const std::size_t end = dot + extension.size();
  if (!ends_word(text, end)) return {};
  // Kept: the text's first character counts as part of the word, whatever it
  // is.
  std::size_t begin = dot;
  while (begin > 1 && is_word_unit(text[begin - 1])) --begin;
  if (begin == 1) begin = 0;
  return begin < dot ? text.substr(begin, end - begin) : std::wstring_view();
}

}  // namespace

std::wstring_view last_segment(std::wstring_view text) {
  return behind(text, last_separator(text));
}

std::wstring_view word_with_extension(std::wstring_view text) {
  if (text.find(L'.') == kNowhere) return {};
  for (const std::wstring_view extension : kExtensions) {
    const std::wstring_view word = word_with(text, extension);
    if (!word.empty()) return word;
  }
  return {};
}

FileName find_file_name(std::wstring_view text, unsigned code_page,
                        ScratchText& scratch) {
  const DecodedText decoded =
      decode_with_code_page(text, code_page, scratch, detected_code_page);
  // Separators and "?" are illegal too: most names need one look only.
  const bool is_clean = !decoded.holds(kIllegal);
  std::wstring_view raw = without_trailing_blanks(decoded.text);
  if (!is_clean) raw = cut_name(raw);
  const std::wstring_view name = without_leading_illegal(raw);
  if (name.empty()) return {kIndexName, true};
  if (name.size() > kLongestSearchedName || name.find(L'.') != kNowhere) {
    return {name, is_clean};
  }
  const std::wstring_view word = word_with_extension(raw);
  return {word.empty() ? name : word, is_clean};
}

void write_file_name(const FileName& name, wchar_t* out) {
  if (name.is_clean) {
    std::copy(name.text.begin(), name.text.end(), out);
  } else {
    std::replace_copy_if(name.text.begin(), name.text.end(), out, is_illegal,
                         L'_');
  }
}

}  // namespace qk::url

std::wstring url_object::file_name_for(const std::wstring& text,
                                       unsigned code_page) {
  qk::url::ScratchText scratch;
  const qk::url::FileName found =
      qk::url::find_file_name(text, code_page, scratch);
  std::wstring name(found.text.size(), L'\0');
  qk::url::write_file_name(found, name.data());
  return name;
}

std::size_t url_object::get_file_pos(const std::wstring& text) {
  return qk::url::file_position(text);
}

std::wstring make_upper(const std::wstring& text) {
  std::wstring upper(text);
  for (wchar_t& unit : upper) {
    if (unit >= L'a' && unit <= L'z') unit -= L'a' - L'A';
  }
  return upper;
}
