/* The link library for C and C++ callers: URLs, file names, ed2k links, magnet
 * links and base64.
 *
 * 1. Text is counted. Wide text is wchar_t units of UTF-32; lengths and
 *    capacities count units. No terminating zero is read, and none is written
 *    except where a function says so. A pointer to text is not null, even with
 *    a length of 0, unless a code for it is stated.
 * 2. Every buffer and record belongs to the caller. Nothing that is returned
 *    needs to be freed; nothing that is passed is kept. Outputs do not overlap
 *    inputs, except where a function says so.
 * 3. A function that fails leaves its outputs as they were, except where it
 *    says otherwise. On success the units of an array beyond its length stay
 *    as they were too.
 * 4. 0 is success, a negative code is failure. Nothing throws. When memory runs
 *    out, or a length is beyond 4294967295 units, the URL functions answer
 *    URL_E_BUFFER, the two link functions URL_E_UNSUPPORTED.
 * 5. A code page says what percent-escapes stand for: 65001 UTF-8, 936 GBK,
 *    1252 Western, ... ; 0 and 0xFFFFFFFF mean the default narrow encoding.
 * 6. The functions keep no state: calls from several threads on different
 *    buffers do not disturb each other.
 */
#ifndef KORVANE_KORVANE_LINKS_H_
#define KORVANE_KORVANE_LINKS_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
  URL_E_UNSUPPORTED = -1,  /* no link, or a URL of an unknown scheme */
  URL_E_BUFFER = -4,       /* a text does not fit; or no memory */
  URL_E_PARSE = -9,        /* no URL */
  URL_E_INVALID_ARG = -11, /* a pointer is null */

  BASE64_E_BUFFER = -16,   /* the destination is too small */
  BASE64_E_CHARACTER = -18 /* not base64 */
};

enum {
  URL_FIELD_CAPACITY = 256,
  URL_PATH_CAPACITY = 2048,
  ED2K_NAME_CAPACITY = 1024,
  ED2K_HASH_SIZE = 16,
  MAGNET_HASH_SIZE = 20
};

/* A URL in parts; each text has its length in front. */
typedef struct url_info_u {
  uint64_t schema_len;
  wchar_t schema[URL_FIELD_CAPACITY]; /* with its "://" */
  uint64_t user_len;
  wchar_t user[URL_FIELD_CAPACITY]; /* decoded, like the password */
  uint64_t password_len;
  wchar_t password[URL_FIELD_CAPACITY];
  uint64_t host_len;
  wchar_t host[URL_FIELD_CAPACITY];
  uint64_t port; /* the scheme's own if the URL has none */
  uint64_t path_len;
  wchar_t path[URL_PATH_CAPACITY]; /* with the query, without the fragment */
  uint32_t code_page;              /* what user and password were read with */
} url_info_u;

/* A file that an ed2k link describes. */
typedef struct ed2k_url_info_u {
  double size;                      /* bytes */
  wchar_t name[ED2K_NAME_CAPACITY]; /* ends in a zero; zeros to the end */
  unsigned char hash[ED2K_HASH_SIZE];
} ed2k_url_info_u;

/* Takes a URL apart.
 * URL_E_INVALID_ARG: `url` or `info` is null.
 * URL_E_PARSE: no "://" behind a first character, nothing between it and the
 *   next "/", or a port that is no number.
 * URL_E_UNSUPPORTED: a URL of an unknown scheme; also the empty text.
 * URL_E_BUFFER: a part is longer than its array. Parts are written in the order
 *   scheme, user, password, host, path, and those before it stay written.
 */
long parse_url_u(const wchar_t* url, size_t url_len, unsigned code_page,
                 url_info_u* info);

/* Prints a URL to `out`; `*out_len` is the capacity of `out` before and the
 * length written after the call. A port that is the scheme's own is left out;
 * port 0 gives the empty text. The lengths in `info` are trusted. `out` may lie
 * within `info`.
 * URL_E_INVALID_ARG: a pointer is null.
 * URL_E_BUFFER: the text is longer than `*out_len`.
 */
long url_info_to_str_u(wchar_t* out, size_t* out_len, const url_info_u* info);

/* Writes the name for the file that a URL leads to, at least one character, to
 * `out`; `*out_len` as above.
 * URL_E_INVALID_ARG: a pointer is null.
 * URL_E_BUFFER: the name is longer than `*out_len`.
 */
long parse_filename_u(wchar_t* out, size_t* out_len, const wchar_t* url,
                      size_t url_len, unsigned code_page);

/* Sets `*supported` to 1 for a scheme, in any case and with its "://", that
 * files are loaded from, to 0 for any other text. "peer://" is such another,
 * although parse_url_u takes it.
 * URL_E_INVALID_ARG: a pointer is null.
 */
long is_support_schema(const char* schema, size_t schema_len,
                       unsigned* supported);

/* Reads the file that an ed2k link describes. The name is cut to 1023
 * characters.
 * URL_E_INVALID_ARG: `url` or `info` is null.
 * URL_E_UNSUPPORTED: no ed2k link to a file.
 */
long parse_ed2k_url_u(const wchar_t* url, size_t length, ed2k_url_info_u* info);

/* Reads the MAGNET_HASH_SIZE bytes of the info hash of a magnet link.
 * `info_hash` is not checked for null.
 * URL_E_UNSUPPORTED: no magnet link with an info hash; `url` is null.
 */
long parse_magnet_url_u(const wchar_t* url, size_t length,
                        unsigned char* info_hash);

/* Writes the base64 text of `source` and a terminating zero to `destination`;
 * `*destination_length` is the room before and the length without the zero
 * after the call.
 * BASE64_E_BUFFER: `source` is null or empty; or the text and its zero need
 *   more room, which is stored in `*destination_length`.
 */
int base64_encode(char* destination, unsigned* destination_length,
                  const unsigned char* source, unsigned source_length);

/* Writes the bytes of a base64 text to `destination`; `*destination_length` as
 * above. Line breaks are skipped. Text of line breaks alone is decoded to
 * nothing: 0, with `*destination_length` as it was.
 * BASE64_E_CHARACTER: `source` is null or empty, or not base64.
 * BASE64_E_BUFFER: the bytes may need more room, which is stored in
 *   `*destination_length`.
 */
int base64_decode(unsigned char* destination, unsigned* destination_length,
                  const char* source, unsigned source_length);

#ifdef __cplusplus
}
#endif

#endif /* KORVANE_KORVANE_LINKS_H_ */
