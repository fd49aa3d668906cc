// One network URL: parsed, printed, and the name of the file it leads to.
#ifndef KORVANE_URL_OBJECT_H_
#define KORVANE_URL_OBJECT_H_

#include <korvane/needs_cpp17.h>

#include <cstddef>
#include <cstdint>
#include <string>

// The schemes that the library knows; host programs store the numbers.
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

// Characters are taken unsigned: those of 128 and above belong to no class.
// Code page 0 and 0xFFFFFFFF mean the default narrow encoding.
class url_object {
 public:
  std::wstring schema;    // with its "://", in the case of the URL
  std::wstring user;      // decoded
  std::wstring password;  // decoded
  std::wstring host;      // as in the URL
  unsigned port = 0;      // the scheme's own if the URL has none; 0: no URL
  std::wstring path;      // with the query, without the fragment, not decoded
  std::wstring extra;     // spare: nothing writes or reads it

  static url_object null_url();

  // Takes `url` apart into `out`; returns whether it is a URL. The empty text
  // is one, the null URL; any other sets all members but `extra`.
  //
  // On false the members found before the fault are set and the others keep
  // their values: none if there is no scheme, `schema` if nothing stands
  // between it and the first "/", `schema`, `user` and `password` if the port
  // is no number.
  static bool parse_url(const std::wstring& url, unsigned code_page,
                        url_object& out);

  // The URL as text; empty when `port` is 0. A port that is the scheme's own is
  // left out; a user is followed by ":" even without a password.
  std::wstring to_string() const;

  // The name under which what `text`, a URL or a part of one, leads to is
  // saved. Never empty; longer than 1023 characters if the text is.
  static std::wstring file_name_for(const std::wstring& text,
                                    unsigned code_page);

  // Where the separator before the file's name stands: the last "\" or "/"
  // before the query, or of the whole text if that holds "url="; npos if none.
  static std::size_t get_file_pos(const std::wstring& text);

  SCHEMA_TYPE schema_type() const;
  unsigned default_port() const;
  // `scheme` in any case, with its "://" and nothing else.
  static SCHEMA_TYPE schema_type_for(const std::wstring& scheme);
  static unsigned default_port_for(SCHEMA_TYPE type);

  // Undo percent-coding; a "%" that opens no escape stays. Narrow: both give
  // bytes. Wide: an escape becomes the code point of its value, 0 to 255, but
  // `decode` leaves escapes of reserved characters as they stand.
  static std::string decode(const std::string& text);
  static std::string decode_ex(const std::string& text);
  static std::wstring decode(const std::wstring& text);
  static std::wstring decode_ex(const std::wstring& text);
  // Reads the escapes as bytes in `code_page`. Text that holds a character
  // above 127 counts as decoded and is returned as it is; other text ends at
  // its first zero.
  static std::wstring decode_ex(const std::wstring& text, unsigned code_page);

  // Escapes what need_escape and is_reserved tell, and a "%" that opens no
  // escape.
  static std::wstring encode_ex(const std::wstring& text);

  // Tells the code page of `text`: 0 in this build, no particular one, like
  // the two below.
  static void detect_codepage(const std::string& text, unsigned* code_page);
  static unsigned get_code_page(const std::string& text);
  static unsigned get_generally_codepage(const std::string& text,
                                         unsigned hint);

  // ASCII letters and digits alone.
  static bool is_alpha(char unit);
  static bool is_alpha(wchar_t unit);
  static bool is_digit(char unit);
  static bool is_digit(wchar_t unit);
  // Whether a printed URL holds the character only in escaped form.
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
