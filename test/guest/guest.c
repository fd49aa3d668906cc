#include <korvane/korvane_links.h>
#include <wchar.h>

int main(void) {
  wchar_t name[64];
  size_t length = 64;
  parse_filename_u(name, &length, L"http://h/My%20File", 18, 0);
  return length != 7 || wcsncmp(name, L"My File", 7);
}
