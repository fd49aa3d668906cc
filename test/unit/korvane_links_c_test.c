/* Uses every C function of the link library from a C program. */
#include <string.h>

#include "url/korvane_links.h"

int use_link_functions_from_c(void);

static int check_url(void) {
  static const wchar_t url[] = L"http://user@host/dir/My%20File.zip?x=1";
  const size_t url_len = sizeof(url) / sizeof(url[0]) - 1;
  url_info_u info;
  wchar_t text[64];
  size_t text_len = 64;
  unsigned supported = 0;

  if (parse_url_u(url, url_len, 0, &info) != 0) return __LINE__;
  if (info.host_len != 4 || info.port != 80) return __LINE__;
  if (memcmp(info.user, L"user", sizeof(wchar_t) * 4) != 0) return __LINE__;
  if (url_info_to_str_u(text, &text_len, &info) != 0) return __LINE__;
  if (text_len != url_len + 1) return __LINE__;
  text_len = 3;
  if (parse_filename_u(text, &text_len, url, url_len, 0) != URL_E_BUFFER) {
    return __LINE__;
  }
  text_len = 64;
  if (parse_filename_u(text, &text_len, url, url_len, 0) != 0) return __LINE__;
  if (text_len != 11) return __LINE__;
  if (is_support_schema("ftp://", 6, &supported) != 0) return __LINE__;
  return supported == 1 ? 0 : __LINE__;
}

int use_link_functions_from_c(void) { return check_url(); }
