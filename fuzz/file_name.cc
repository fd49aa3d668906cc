// The name of the file that a URL leads to.
#include "url/url_file_name.h"

#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "fuzz.h"

static void check_c_function(const Text& text, unsigned code_page) {
  Text path = text.substr(0, text.find(L'?'));
  const std::size_t separator = path.find_last_of(L"\\/");
  if (separator != Text::npos) path.erase(0, separator + 1);
  const Text want = url_object::file_name_for(path, code_page);
  const ExactCopy<wchar_t> copy(text);
  const std::unique_ptr<wchar_t[]> out(new wchar_t[want.size()]);
  std::size_t size = want.size() - 1;
  const auto name = [&] {
    return parse_filename_u(out.get(), &size, copy.data(), copy.size(),
                            code_page);
  };
  require(name() == URL_E_BUFFER, "a name does not fit in less");
  require(size++ == want.size() - 1, "a length stays when it does not fit");
  require(name() == 0 && Text(out.get(), size) == want, "the C function");
}

void check(Bytes& input) {
  const unsigned code_page =
      choose(input, {0U, 65001U, 936U, 1252U, ~0U, 950U, 1U});
  const Text text = widen(input);
  const Text name = url_object::file_name_for(text, code_page);
  require(!name.empty(), "a name is never empty");
  require(name.find_first_of(L"\\/:*?\"<>|\t\r\n") == Text::npos,
          "a name has what a file's name may");
  if (name.find_first_of(L" %\0"s) == Text::npos) {
    require(url_object::file_name_for(name, code_page) == name,
            "the name of a name is that name");
  }
  check_c_function(text, code_page);
  const Text word(qk::url::word_with_extension(text));
  require(text.find(word) != Text::npos, "a word is in its text");
}
