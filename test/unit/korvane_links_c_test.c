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

static int check_links(void) {
  static const wchar_t ed2k[] =
      L"ed2k://|file|a%20b|100|0123456789ABCDEF0123456789ABCDEF|/";
  static const wchar_t magnet[] =
      L"magnet:?xt=urn:btih:0123456789abcdef0123456789abcdef01234567";
  ed2k_url_info_u info;
  unsigned char hash[MAGNET_HASH_SIZE];

  if (parse_ed2k_url_u(ed2k, sizeof(ed2k) / sizeof(ed2k[0]) - 1, &info) != 0) {
    return __LINE__;
  }
  if (info.size < 100 || info.size > 100) return __LINE__;
  if (memcmp(info.name, L"a b", sizeof(wchar_t) * 4) != 0) return __LINE__;
  if (info.hash[ED2K_HASH_SIZE - 1] != 0xEF) return __LINE__;
  if (parse_magnet_url_u(magnet, sizeof(magnet) / sizeof(magnet[0]) - 1,
                         hash) != 0) {
    return __LINE__;
  }
  return hash[MAGNET_HASH_SIZE - 1] == 0x67 ? 0 : __LINE__;
}

static int check_base64(void) {
  static const unsigned char bytes[] = {'a', 'b', 'c', 'd'};
  char text[9];
  unsigned char decoded[6];
  unsigned text_length = 4;
  unsigned length = sizeof(decoded);

  if (base64_encode(text, &text_length, bytes, 4) != BASE64_E_BUFFER) {
    return __LINE__;
  }
  if (text_length != sizeof(text)) return __LINE__;
  if (base64_encode(text, &text_length, bytes, 4) != 0) return __LINE__;
  if (strcmp(text, "YWJjZA==") != 0) return __LINE__;
  if (base64_decode(decoded, &length, text, text_length) != 0) return __LINE__;
  if (length != 4 || memcmp(decoded, bytes, 4) != 0) return __LINE__;
  return base64_decode(decoded, &length, "!", 1) == BASE64_E_CHARACTER
             ? 0
             : __LINE__;
}

int use_link_functions_from_c(void) {
  const int url_line = check_url();
  const int links_line = url_line != 0 ? url_line : check_links();
  return links_line != 0 ? links_line : check_base64();
}
