// Percent-coding and character classes of url_object.
#include <korvane/url_object.h>
#include "url/character_classes.h"
#include "url/percent_coding.h"
#include "url/text_decoding.h"

namespace {

using qk::url::Kept;
using qk::url::percent_decode;

template <Kept kKept, typename Unit>
std::basic_string<Unit> decoded(const std::basic_string<Unit>& text) {
  std::basic_string<Unit> result(text);
  const Unit* end =
      percent_decode<kKept>(std::basic_string_view<Unit>(text), result.data());
  result.resize(static_cast<std::size_t>(end - result.data()));
  return result;
}

template <typename Unit>
void trim(std::basic_string<Unit>& text) {
  const std::basic_string_view<Unit> all = text;
  text.erase(0, all.size() - qk::url::without_leading_blanks(all).size());
}

}  // namespace

std::string url_object::decode(const std::string& text) {
  return decoded<Kept::kNothing>(text);
}

std::string url_object::decode_ex(const std::string& text) {
  return decode(text);
}

std::wstring url_object::decode(const std::wstring& text) {
  return decoded<Kept::kSeparating>(text);
}

std::wstring url_object::decode_ex(const std::wstring& text) {
  return decoded<Kept::kNothing>(text);
}

std::wstring url_object::decode_ex(const std::wstring& text,
                                   unsigned code_page) {
  qk::url::ScratchText scratch;
  return std::wstring(qk::url::decoded(text, code_page, scratch));
}

std::wstring url_object::encode_ex(const std::wstring& text) {
  std::wstring escaped;
  qk::url::append_escaped(text, escaped);
  return escaped;
}

void url_object::detect_codepage(const std::string& text, unsigned* code_page) {
  const bool ascii = qk::url::is_ascii(std::string_view(text));
  *code_page = get_generally_codepage(ascii ? decode(text) : text, *code_page);
}

unsigned url_object::get_code_page(const std::string& /*text*/) { return 0; }

unsigned url_object::get_generally_codepage(const std::string& /*text*/,
                                            unsigned /*hint*/) {
  return 0;
}

void url_object::trim_pre_space(std::string& text) { trim(text); }

void url_object::trim_pre_space(std::wstring& text) { trim(text); }

bool url_object::is_alpha(char unit) { return qk::url::is_letter(unit); }
bool url_object::is_alpha(wchar_t unit) { return qk::url::is_letter(unit); }

bool url_object::is_digit(char unit) { return qk::url::is_decimal(unit); }
bool url_object::is_digit(wchar_t unit) { return qk::url::is_decimal(unit); }

bool url_object::need_escape(char unit) {
  return qk::url::is_one_of(unit, qk::url::kNeedEscape);
}
bool url_object::need_escape(wchar_t unit) {
  return qk::url::is_one_of(unit, qk::url::kNeedEscape);
}

bool url_object::is_reserved(char unit) {
  return qk::url::is_one_of(unit, qk::url::kReserved);
}
bool url_object::is_reserved(wchar_t unit) {
  return qk::url::is_one_of(unit, qk::url::kReserved);
}
