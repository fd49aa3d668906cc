/* Uses every C function of the link library from a C program. */
#include <string.h>

#include "url/korvane_links.h"

int use_link_functions_from_c(void);

/* Programs are compiled with these. */
typedef char
    codes_are_known[URL_E_UNSUPPORTED == -1 && URL_E_BUFFER == -4 &&
                            URL_E_PARSE == -9 && URL_E_INVALID_ARG == -11 &&
                            BASE64_E_BUFFER == -16 && BASE64_E_CHARACTER == -18
                        ? 1
                        : -1];

int use_link_functions_from_c(void) {
  static const wchar_t url[] = L"http://u@h/My%20File.zip";
  static const wchar_t ed2k[] =
      L"ed2k://|file|a%20b|100|0123456789ABCDEF0123456789ABCDEF|/";
  static const wchar_t magnet[] =
      L"magnet:?xt=urn:btih:0123456789abcdef0123456789abcdef01234567";
  const size_t length = sizeof(url) / sizeof(url[0]) - 1;
  url_info_u info;
  ed2k_url_info_u file;
  wchar_t out[64];
  size_t out_len = 64;
  char text[9];
  unsigned char bytes[MAGNET_HASH_SIZE];
  unsigned number = 0;

  if (parse_url_u(url, length, 0, &info) != 0) return __LINE__;
  if (url_info_to_str_u(out, &out_len, &info) != 0) return __LINE__;
  if (memcmp(out, L"http://u:@h/", sizeof(wchar_t) * 12) != 0) return __LINE__;
  if (parse_filename_u(out, &out_len, url, length, 0) != 0) return __LINE__;
  if (memcmp(out, L"My File.zip", sizeof(wchar_t) * 11) != 0) return __LINE__;
  if (is_support_schema("ftp://", 6, &number) != 0) return __LINE__;
  if (number != 1) return __LINE__;
  if (parse_ed2k_url_u(ed2k, sizeof(ed2k) / sizeof(ed2k[0]) - 1, &file) != 0) {
    return __LINE__;
  }
  if (file.hash[ED2K_HASH_SIZE - 1] != 0xEF) return __LINE__;
  if (parse_magnet_url_u(magnet, sizeof(magnet) / sizeof(magnet[0]) - 1,
                         bytes) != 0) {
    return __LINE__;
  }
  if (bytes[MAGNET_HASH_SIZE - 1] != 0x67) return __LINE__;
  number = sizeof(text);
  if (base64_encode(text, &number, bytes, 4) != 0) return __LINE__;
  if (strcmp(text, "ASNFZw==") != 0) return __LINE__;
  return base64_decode(bytes, &number, text, 8) == 0 && number == 4 ? 0
                                                                    : __LINE__;
}
