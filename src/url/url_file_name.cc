#include "url/url_file_name.h"

#include <algorithm>
#include <cctype>
#include <string>

#include <korvane/url_object.h>
#include "text/code_of.h"
#include "url/character_classes.h"

namespace qk::url {
namespace {

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kIndexName = L"index.html";
constexpr std::size_t kLongestSearchedName = 1023;

// In the order in which they are searched for.
constexpr std::wstring_view kExtensions[] = {
    L".msi",  L".asf", L".avi",  L".exe", L".iso", L".mp3",
    L".mpeg", L".mpg", L".mpga", L".ra",  L".rar", L".rm",
    L".rmvb", L".tar", L".wma",  L".wmp", L".wmv", L".zip"};

// The separator before the file name. A URL in the query after "url=" is what
// the whole URL leads to.
std::size_t file_position(std::wstring_view text) {
  const bool is_redirect = text.find(L"url=") != kNowhere;
  return text.find_last_of(L"\\/", is_redirect ? kNowhere : text.find(L'?'));
}

// Code page 0 and 0xFFFFFFFF mean the one that is detected.
unsigned detected_code_page(const std::string& bytes, unsigned code_page) {
  return is_default_code_page(code_page)
             ? url_object::get_generally_codepage(bytes, 0xFFFFFFFF)
             : code_page;
}

std::wstring_view without_trailing_blanks(std::wstring_view text) {
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

bool is_illegal(wchar_t unit) { return is_one_of(unit, kIllegal); }

// The name in decoded text with separators or a query.
std::wstring_view cut_name(std::wstring_view text) {
  const std::size_t query = text.rfind(L'?');
  if (query == kNowhere) return last_segment(text).text;
  // Quirk: the last "?" stays, and is written as "_".
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

std::wstring_view word_with(std::wstring_view text,
                            std::wstring_view extension) {
  std::size_t dot = text.find(extension);
  if (dot == kNowhere) dot = text.find(make_upper(std::wstring(extension)));
  if (dot == kNowhere) return {};
  const std::size_t end = dot + extension.size();
  if (!ends_word(text, end)) return {};
  std::size_t begin = dot;
  // Quirk: the first character of the text belongs to the word, whatever it is.
  while (begin > 0 && (begin == 1 || is_word_unit(text[begin - 1]))) --begin;
  return begin < dot ? text.substr(begin, end - begin) : std::wstring_view();
}

}  // namespace

ClassifiedText last_segment(std::wstring_view text) {
  unsigned classes = 0;
  const auto before =
      std::find_if(text.rbegin(), text.rend(), [&classes](wchar_t unit) {
        const unsigned some = classes_of(unit);
        if ((some & kSeparator) != 0) return true;
        classes |= some;
        return false;
      });
  text.remove_prefix(static_cast<std::size_t>(text.rend() - before));
  return {text, static_cast<CharacterClasses>(classes)};
}

std::wstring_view word_with_extension(std::wstring_view text) {
  for (const std::wstring_view extension : kExtensions) {
    const std::wstring_view word = word_with(text, extension);
    if (!word.empty()) return word;
  }
  return {};
}

FileName find_file_name(ClassifiedText& text, unsigned code_page,
                        ScratchText& scratch) {
  decode_with_code_page(text, code_page, scratch, detected_code_page);
  std::wstring_view raw = without_trailing_blanks(text.text);
  // Separators and "?" are illegal too.
  const bool is_clean = !text.holds(kIllegal);
  if (!is_clean) raw = cut_name(raw);
  const std::wstring_view name = without_leading_illegal(raw);
  if (name.empty()) return {kIndexName, is_clean};
  // A clean name is all of the text, so it has the text's ".".
  if (is_clean || !text.holds(kDot) || name.size() > kLongestSearchedName ||
      name.find(L'.') != kNowhere) {
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
  qk::url::ClassifiedText decoded = qk::url::classify(text);
  qk::url::ScratchText scratch;
  const qk::url::FileName found =
      qk::url::find_file_name(decoded, code_page, scratch);
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
