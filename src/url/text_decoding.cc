#include "url/text_decoding.h"

#include <utility>

#include "host/korvane_host.h"
#include "url/percent_coding.h"
#include "url/url_object.h"

namespace qk::url {
namespace {

constexpr unsigned kDefaultCodePage = 0;
constexpr unsigned kAnyCodePage = 0xFFFFFFFF;

unsigned named_code_page(unsigned code_page) {
  return code_page == kAnyCodePage ? kDefaultCodePage : code_page;
}

unsigned code_page_of(const std::string& bytes, unsigned code_page) {
  const unsigned named = named_code_page(code_page);
  if (named != kDefaultCodePage) return named;
  return named_code_page(
      url_object::get_generally_codepage(bytes, kAnyCodePage));
}

std::wstring_view until_zero(std::wstring_view text) {
  return text.substr(0, text.find(L'\0'));
}

}  // namespace

wchar_t* ScratchText::reserve(std::size_t size) {
  if (size <= short_.size()) return short_.data();
  long_.resize(size);
  return long_.data();
}

std::wstring_view ScratchText::hold(std::wstring&& text) {
  long_ = std::move(text);
  return long_;
}

std::wstring_view decode_with_code_page(std::wstring_view text,
                                        unsigned code_page,
                                        ScratchText& scratch) {
  if (!is_ascii(text)) return text;
  // Every code page agrees with ASCII: only other bytes need the conversion.
  if (text.find(L'%') == std::wstring_view::npos) return until_zero(text);
  wchar_t* decoded = scratch.reserve(text.size());
  const wchar_t* end = percent_decode(text, decoded);
  const std::wstring_view units =
      until_zero({decoded, static_cast<std::size_t>(end - decoded)});
  if (is_ascii(units)) return units;
  const std::string bytes(units.begin(), units.end());
  return scratch.hold(string_to_wstring_with_code_page(
      bytes, static_cast<int>(code_page_of(bytes, code_page))));
}

}  // namespace qk::url
