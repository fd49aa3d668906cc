// The name of the file that a URL leads to, as views.
#ifndef KORVANE_URL_URL_FILE_NAME_H_
#define KORVANE_URL_URL_FILE_NAME_H_

#include <cstddef>
#include <string_view>

#include "url/text_decoding.h"

namespace qk::url {

// The text after the last "\" or "/"; all of `text` if there is none.
ClassifiedText last_segment(std::wstring_view text);

struct FileName {
  std::wstring_view text;  // not empty
  bool is_clean;           // false: may contain what no file name may contain
};

// The name of the file that `text` leads to, which is decoded. A view of
// `text`, of `scratch` or of a constant; write_file_name cleans it.
FileName find_file_name(ClassifiedText& text, unsigned code_page,
                        ScratchText& scratch);

// Writes name.text.size() code units to `out`, with "_" for each character that
// no file name may contain.
void write_file_name(const FileName& name, wchar_t* out);

// The word in `text` that ends in a known file extension followed by white
// space, a comma or the end of the text: "setup.exe" in "get setup.exe, now".
// Extensions are all lower or all upper case. Empty if there is none.
std::wstring_view word_with_extension(std::wstring_view text);

}  // namespace qk::url

#endif  // KORVANE_URL_URL_FILE_NAME_H_
