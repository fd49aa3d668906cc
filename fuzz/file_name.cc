// The name of the file that a URL leads to, against a slow reading of the
// rules, and by the C function.
#include <algorithm>
#include <memory>

#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "fuzz.h"
#include "unit/exact_copy.h"
#include "url/url_file_name.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
constexpr std::size_t kNowhere = std::wstring::npos;
constexpr wchar_t kIllegal[] = L"\\/:*?\"<>|\t\r\n";

std::wstring decode_slowly(const std::wstring& text, unsigned code_page) {
  const bool decoded = std::any_of(text.begin(), text.end(), [](wchar_t unit) {
    return qk::text::code_of(unit) > 127;
  });
  if (decoded) return text;
  return string_to_wstring_with_code_page(
      url_object::decode(wstring_2_string(text)), static_cast<int>(code_page));
}

std::size_t separator_of(const std::wstring& text) {
  const std::size_t query = text.find(L'?');
  const bool in_query = text.find(L"url=") != kNowhere || query == kNowhere;
  return text.find_last_of(L"\\/", in_query ? kNowhere : query);
}

std::wstring name_slowly(const std::wstring& text, unsigned code_page) {
  std::wstring rest = decode_slowly(text, code_page);
  rest.erase(rest.find_last_not_of(L" \t") + 1);
  const std::size_t query = rest.rfind(L'?');
  if (query != kNowhere) rest.erase(query + 1);
  const std::size_t separator = separator_of(rest);
  require(separator == url_object::get_file_pos(rest), "where a name stands");
  std::wstring name = separator == kNowhere ? rest : rest.substr(separator + 1);
  // Without a separator the text is the name, "&" and all.
  if (query != kNowhere && separator != kNowhere) {
    name.resize(std::min(name.find(L'&'), name.size()));
  }
  name.erase(0, name.find_first_not_of(kIllegal));
  for (wchar_t& unit : name) {
    if (unit != 0 && std::wcschr(kIllegal, unit) != nullptr) unit = L'_';
  }
  return name.empty() ? L"index.html" : name;
}

void check_entry_point(const std::wstring& text, unsigned code_page) {
  const std::wstring path = text.substr(0, text.find(L'?'));
  const std::wstring want =
      name_slowly(path.substr(path.find_last_of(L"\\/") + 1), code_page);
  const ExactCopy copy{std::wstring_view(text)};
  const std::unique_ptr<wchar_t[]> out(new wchar_t[want.size()]);
  std::size_t size = want.size() - 1;
  const auto name = [&] {
    return parse_filename_u(out.get(), &size, copy.data(), copy.size(),
                            code_page);
  };
  require_equal(URL_E_BUFFER, name(), "the room is too small");
  require(size++ == want.size() - 1, "a length stays when it does not fit");
  require_equal(0, name(), "the room is large enough");
  require_equal(want, std::wstring_view(out.get(), size), "the C function");
}

void check_word(const std::wstring& text) {
  const std::wstring_view word = qk::url::word_with_extension(text);
  if (word.empty()) return;
  require(word.find(L'.') != kNowhere, "a word has an extension");
  require(text.find(word) != kNowhere, "a word stands in its text");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr unsigned kCodePages[] = {0, 65001, 936, 1252, 0xFFFFFFFF, 950, 1};
  fuzz::Input input(data, size);
  const unsigned code_page = kCodePages[input.choose(7)];
  const std::wstring text = input.text();
  const std::wstring name = url_object::file_name_for(text, code_page);
  require(!name.empty(), "a name is never empty");
  require(name.size() > 1023 || name.find_first_of(kIllegal) == kNowhere,
          "a name holds what a file's name may");
  require_equal(name_slowly(text, code_page), name, "the name");
  check_entry_point(text, code_page);
  check_word(text);
  return 0;
}
