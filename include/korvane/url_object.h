// A network URL: parsing, printing, and the name of the file it leads to.
#ifndef KORVANE_URL_OBJECT_H_
#define KORVANE_URL_OBJECT_H_

#include <korvane/needs_cpp17.h>

#include <cstddef>
#include <cstdint>
#include <string>

// The known schemes. Host programs store the numbers.
enum SCHEMA_TYPE : std::uint32_t {
  SCHEMA_HTTP = 0,
  SCHEMA_FTP = 1,
  SCHEMA_MMS = 2,
  SCHEMA_HTTPS = 3,
  SCHEMA_MMST = 4,
  SCHEMA_PEER = 5,
  SCHEMA_RTSP = 6,
  SCHEMA_RTSPT = 7,
  SCHEMA_FTPS = 8,
  SCHEMA_UNKNOWN = 10,
};

// Characters count as unsigned: those of 128 and above belong to no class. Code
// page 0 and 0xFFFFFFFF mean the default narrow encoding.
class url_object {
 public:
  std::wstring schema;    // with its "://", in the case of the URL
  std::wstring user;      // decoded
  std::wstring password;  // decoded
  std::wstring host;      // as in the URL
  unsigned port = 0;      // the scheme's default if the URL has none; 0: no URL
  std::wstring path;      // with the query, without the fragment, not decoded
  std::wstring extra;     // spare: nothing writes or reads it

  static url_object null_url();

  // Splits `url` into `out`; returns whether it is a URL. The empty text is
  // one, the null URL; any other sets all members but `extra`.
  //
  // On false the members found before the fault are set and the others keep
  // their values: none if there is no scheme, `schema` if a "/" follows it, and
  // `schema`, `user` and `password` if the port is no number.
  static bool parse_url(const std::wstring& url, unsigned code_page,
                        url_object& out);

  // The URL as text; empty if `port` is 0. The scheme's default port is left
  // out; ":" follows a user even without a password.
  std::wstring to_string() const;

  // The name of the file that `text`, a URL or a part of one, leads to. Never
  // empty; may be longer than 1023 characters.
  static std::wstring file_name_for(const std::wstring& text,
                                    unsigned code_page);

  // The position of the separator before the file name: the last "\" or "/"
  // before the query, or in the whole text if that contains "url="; npos if
  // there is none.
  static std::size_t get_file_pos(const std::wstring& text);

  SCHEMA_TYPE schema_type() const;
  unsigned default_port() const;
  // `scheme` in any case, with its "://" and nothing else.
  static SCHEMA_TYPE schema_type_for(const std::wstring& scheme);
  static unsigned default_port_for(SCHEMA_TYPE type);

  // Undo percent-coding; a "%" that begins no escape stays. Narrow: both return
  // bytes. Wide: an escape becomes the code point of its value, 0 to 255, but
  // `decode` keeps the escapes of reserved characters.
  static std::string decode(const std::string& text);
  static std::string decode_ex(const std::string& text);
  static std::wstring decode(const std::wstring& text);
  static std::wstring decode_ex(const std::wstring& text);
  // Reads the escapes as bytes in `code_page`. Text with a character above 127
  // counts as decoded and is returned as it is; other text ends at its first
  // zero.
  static std::wstring decode_ex(const std::wstring& text, unsigned code_page);

  // Escapes the characters of need_escape and is_reserved, but keeps escapes.
  static std::wstring encode_ex(const std::wstring& text);

  // Detects the code page of `text`: always 0, no particular one, like the two
  // below.
  static void detect_codepage(const std::string& text, unsigned* code_page);
  static unsigned get_code_page(const std::string& text);
  static unsigned get_generally_codepage(const std::string& text,
                                         unsigned hint);

  // ASCII letters and digits alone.
  static bool is_alpha(char unit);
  static bool is_alpha(wchar_t unit);
  static bool is_digit(char unit);
  static bool is_digit(wchar_t unit);
  // Whether the character is escaped in printed URLs.
  static bool need_escape(char unit);
  static bool need_escape(wchar_t unit);
  // Whether the character separates parts of a URL.
  static bool is_reserved(char unit);
  static bool is_reserved(wchar_t unit);

  // Remove the spaces and tabs that `text` begins with.
  static void trim_pre_space(std::string& text);
  static void trim_pre_space(std::wstring& text);
};

// A copy with the letters "a" to "z" as capitals, all else unchanged.
std::wstring make_upper(const std::wstring& text);

#endif  // KORVANE_URL_OBJECT_H_
