#include <korvane/url_object.h>

int main() {
  url_object url;
  url_object::parse_url(L"http://h/My%20File", 0, url);
  return url.to_string() == L"http://h/My%20File" ? 0 : 1;
}
