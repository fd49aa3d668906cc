// The name of the file that a URL leads to, as views.
#ifndef KORVANE_URL_URL_FILE_NAME_H_
#define KORVANE_URL_URL_FILE_NAME_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "url/text_decoding.h"

namespace qk::url {

// What stands behind the last "\" or "/"; all of `text` if there is none.
std::wstring_view last_segment(std::wstring_view text);

struct FileName {
  std::wstring_view text;  // not empty
  bool is_clean;           // false: may hold what no file's name may hold
};

// The name for what `text` leads to, a view of `text`, of `scratch` or of a
// constant; write_file_name cleans it.
FileName find_file_name(std::wstring_view text, unsigned code_page,
                        ScratchText& scratch);

// Writes name.text.size() units to `out`, "_" for each character that no file's
// name may hold.
void write_file_name(const FileName& name, wchar_t* out);

// The word in `text` that ends in a known file extension, which white space, a
// comma or the end of the text follows: "setup.exe" in "get setup.exe, now".
// Extensions are all lower or all upper case. Empty if there is none.
std::wstring_view word_with_extension(std::wstring_view text);

}  // namespace qk::url

#endif  // KORVANE_URL_URL_FILE_NAME_H_
