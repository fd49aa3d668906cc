/* A native program in C99 that uses the installed link library. */
#include <stdio.h>
#include <wchar.h>

#include <korvane/korvane_links.h>

int main(void) {
  const wchar_t* url = L"http://h/dir/My%20File.zip?x=1";
  wchar_t name[64];
  size_t length = 64;
  const long code = parse_filename_u(name, &length, url, wcslen(url), 0);
  printf("%ld %.*ls\n", code, (int)length, name);
  return 0;
}
