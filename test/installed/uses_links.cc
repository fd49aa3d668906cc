// A native program that uses the installed link library by its classes.
#include <cstdio>

#include <korvane/ed2k_file_link.h>
#include <korvane/url_object.h>

int main() {
  url_object url;
  const bool parsed = url_object::parse_url(L"ftp://h:21/a%20b", 0, url);
  std::wstring name = L"a.bin";
  const ed2k_file_link file(name, 100, {});
  std::string link;
  file.get_ed2k_url(link, 0);
  std::printf("%d %ls %s\n", parsed ? 1 : 0, url.to_string().c_str(),
              link.c_str());
  return 0;
}
