// The name of the file that a URL leads to.
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>

#include "fuzz.h"

void check(Bytes& input) {
  const unsigned code_page = take_code_page(input);
  Text text = widen(input);
  const Text name = url_object::file_name_for(text, code_page);
  require(!name.empty(), "a name is never empty");
  require(name.find_first_of(L"\\/:*?\"<>|\t\r\n") == Text::npos,
          "a name has what a file's name may");
  const ExactCopy copy(text);
  // A file name is the last segment before the query.
  text.resize(std::min(text.size(), text.find(L'?')));
  text.erase(0, text.find_last_of(L"\\/") + 1);
  const Text want = url_object::file_name_for(text, code_page);
  Text out(want.size(), L'#');
  std::size_t size = out.size();
  require(parse_filename_u(out.data(), &size, copy.data(), copy.size(),
                           code_page) == 0,
          "it fits");
  require(out == want, "the C function");
}
