// Host code as a product has it: an addon of the same runtime that calls the C
// functions of KorvaneHelper.node and gives a script what they read.
//
//   attach(path)   finds the functions in the loaded module; false if it cannot
//   inspect(link)  {kind, ...fields} for a link, {error} for any other text
#include <dlfcn.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <string>
#include <string_view>

#include <korvane/korvane_links.h>
#include "script/runtime_port.h"

namespace {

using Arguments = v8::FunctionCallbackInfo<v8::Value>;

struct LinkLibrary {
  decltype(&parse_url_u) parse_url;
  decltype(&url_info_to_str_u) print_url;
  decltype(&parse_filename_u) parse_file_name;
  decltype(&is_support_schema) is_supported;
  decltype(&parse_ed2k_url_u) parse_ed2k;
  decltype(&parse_magnet_url_u) parse_magnet;
};

LinkLibrary library;

template <typename Function>
bool find(void* module, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(module, name));
  return function != nullptr;
}

bool attach(const char* path) {
  // The runtime has loaded the module already; this only finds it.
  void* module = dlopen(path, RTLD_LAZY | RTLD_NOLOAD);
  return module != nullptr && find(module, "parse_url_u", library.parse_url) &&
         find(module, "url_info_to_str_u", library.print_url) &&
         find(module, "parse_filename_u", library.parse_file_name) &&
         find(module, "is_support_schema", library.is_supported) &&
         find(module, "parse_ed2k_url_u", library.parse_ed2k) &&
         find(module, "parse_magnet_url_u", library.parse_magnet);
}

// --- Texts: 16-bit units on the script's side, characters on the library's

std::wstring wide_text(v8::Isolate* isolate, v8::Local<v8::Value> value) {
  const runtime_port::Utf16Text text(isolate, value);
  const std::uint16_t* units = text.units();
  std::wstring wide;
  wide.reserve(text.length());
  for (std::size_t i = 0; i < text.length(); ++i) {
    const std::uint32_t unit = units[i];
    const std::uint32_t next = i + 1 < text.length() ? units[i + 1] : 0;
    if (unit >> 10 == 0x36 && next >> 10 == 0x37) {
      wide += static_cast<wchar_t>(0x10000 + ((unit & 0x3FF) << 10) +
                                   (next & 0x3FF));
      ++i;
    } else {
      wide += static_cast<wchar_t>(unit);
    }
  }
  return wide;
}

v8::Local<v8::String> script_text(v8::Isolate* isolate,
                                  std::wstring_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (const wchar_t character : text) {
    const auto code = static_cast<std::uint32_t>(character);
    if (code > 0x10FFFF) {
      units += u'\uFFFD';
    } else if (code > 0xFFFF) {
      units += static_cast<char16_t>(0xD7C0 + (code >> 10));
      units += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    } else {
      units += static_cast<char16_t>(code);
    }
  }
  return v8::String::NewFromTwoByte(
             isolate, reinterpret_cast<const std::uint16_t*>(units.data()),
             v8::NewStringType::kNormal, static_cast<int>(units.size()))
      .ToLocalChecked();
}

std::wstring hexadecimal(const unsigned char* bytes, std::size_t count) {
  constexpr wchar_t kDigits[] = L"0123456789abcdef";
  std::wstring text;
  for (std::size_t i = 0; i < count; ++i) {
    text += kDigits[bytes[i] >> 4];
    text += kDigits[bytes[i] & 15];
  }
  return text;
}

// --- What is known of one link, as a script object

class Report {
 public:
  explicit Report(v8::Isolate* isolate)
      : isolate_(isolate), object_(v8::Object::New(isolate)) {}

  void add_text(const char* key, std::wstring_view text) {
    set(key, script_text(isolate_, text));
  }
  void add_number(const char* key, double number) {
    set(key, v8::Number::New(isolate_, number));
  }
  void add_flag(const char* key, bool flag) {
    set(key, v8::Boolean::New(isolate_, flag));
  }
  v8::Local<v8::Object> object() const { return object_; }

 private:
  void set(const char* key, v8::Local<v8::Value> value) {
    const auto name =
        v8::String::NewFromUtf8(isolate_, key, v8::NewStringType::kInternalized)
            .ToLocalChecked();
    object_->Set(isolate_->GetCurrentContext(), name, value).FromMaybe(false);
  }

  v8::Isolate* isolate_;
  v8::Local<v8::Object> object_;
};

const wchar_t* reason(long code) {
  if (code == URL_E_BUFFER) return L"a part of the URL is too long";
  if (code == URL_E_UNSUPPORTED) return L"a scheme that nothing here loads";
  return L"no link";
}

void inspect_magnet(std::wstring_view link, Report& report) {
  unsigned char hash[MAGNET_HASH_SIZE] = {};
  if (library.parse_magnet(link.data(), link.size(), hash) != 0) {
    return report.add_text("error", L"no magnet link with an info hash");
  }
  report.add_text("kind", L"magnet");
  report.add_text("infoHash", hexadecimal(hash, sizeof(hash)));
}

void inspect_ed2k(std::wstring_view link, Report& report) {
  ed2k_url_info_u info;
  if (library.parse_ed2k(link.data(), link.size(), &info) != 0) {
    return report.add_text("error", L"no ed2k link to a file");
  }
  report.add_text("kind", L"ed2k");
  report.add_text("name", info.name);
  report.add_number("size", info.size);
  report.add_text("hash", hexadecimal(info.hash, sizeof(info.hash)));
}

// Longer texts cannot come out of a record; names may be as long as the link.
void add_file_name(std::wstring_view link, Report& report) {
  std::wstring name(link.size() + 16, L'\0');
  std::size_t length = name.size();
  if (library.parse_file_name(name.data(), &length, link.data(), link.size(),
                              0) == 0) {
    report.add_text("name", std::wstring_view(name).substr(0, length));
  }
}

bool is_supported(const url_info_u& info) {
  const std::string scheme(info.schema, info.schema + info.schema_len);
  unsigned supported = 0;
  library.is_supported(scheme.data(), scheme.size(), &supported);
  return supported != 0;
}

void inspect_url(std::wstring_view link, Report& report) {
  url_info_u info;
  const long code = library.parse_url(link.data(), link.size(), 0, &info);
  if (code != 0) return report.add_text("error", reason(code));
  report.add_text("kind", L"url");
  add_file_name(link, report);
  report.add_text("scheme", {info.schema, info.schema_len});
  if (info.user_len != 0) report.add_text("user", {info.user, info.user_len});
  if (info.password_len != 0) {
    report.add_text("password", {info.password, info.password_len});
  }
  report.add_text("host", {info.host, info.host_len});
  report.add_number("port", static_cast<double>(info.port));
  report.add_text("path", {info.path, info.path_len});
  wchar_t printed[8192];
  std::size_t length = std::size(printed);
  if (library.print_url(printed, &length, &info) == 0) {
    report.add_text("printed", {printed, length});
  }
  report.add_flag("supported", is_supported(info));
}

wchar_t lower_case(wchar_t character) {
  return character >= L'A' && character <= L'Z'
             ? static_cast<wchar_t>(character + 32)
             : character;
}

bool starts_with(std::wstring_view text, std::wstring_view prefix) {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin(),
                    [](wchar_t wanted, wchar_t character) {
                      return wanted == lower_case(character);
                    });
}

void inspect(std::wstring_view link, Report& report) {
  if (starts_with(link, L"magnet:")) return inspect_magnet(link, report);
  if (starts_with(link, L"ed2k://")) return inspect_ed2k(link, report);
  if (starts_with(link, L"korvane://")) {
    // Private links are made on this platform, never read.
    return report.add_text("kind", L"private");
  }
  inspect_url(link, report);
}

void attach_function(const Arguments& arguments) {
  if (!arguments[0]->IsString()) return;
  char path[PATH_MAX] = {};
  runtime_port::write_utf8(arguments.GetIsolate(),
                           arguments[0].As<v8::String>(), path, PATH_MAX - 1);
  arguments.GetReturnValue().Set(attach(path));
}

void inspect_function(const Arguments& arguments) {
  Report report(arguments.GetIsolate());
  inspect(wide_text(arguments.GetIsolate(), arguments[0]), report);
  arguments.GetReturnValue().Set(report.object());
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "attach", attach_function);
  NODE_SET_METHOD(exports, "inspect", inspect_function);
}

}  // namespace

NODE_MODULE(inspect_links, register_functions)
