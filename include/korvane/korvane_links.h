/* The link library for C and C++: URLs, file names, ed2k links, magnet links
 * and base64.
 *
 * 1. Text is a pointer and a length. Wide text is UTF-32; its lengths and
 *    capacities are in wchar_t. Text needs no terminating zero and gets none,
 *    except where a function says so. Pointers must not be null, even for empty
 *    text, unless a function has a code for it.
 * 2. All memory belongs to the caller: nothing returned must be freed, nothing
 *    passed is kept. Outputs must not overlap inputs, except where a function
 *    says so.
 * 3. Functions return 0 on success and a negative code on failure. On failure
 *    outputs are unchanged, except where a function says otherwise. Arrays are
 *    unchanged beyond the length that is stored for them.
 * 4. No function throws. Out of memory and lengths above 4294967295 give
 *    URL_E_BUFFER in URL functions, URL_E_UNSUPPORTED in link functions.
 * 5. A code page is the encoding of percent-escapes: 65001 UTF-8, 936 GBK, 1252
 *    Western, ...; 0 and 0xFFFFFFFF mean the default.
 * 6. There is no state: all functions may be called from several threads.
 */
#ifndef KORVANE_KORVANE_LINKS_H_
#define KORVANE_KORVANE_LINKS_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
  URL_E_UNSUPPORTED = -1,  /* invalid link, or URL of an unknown scheme */
  URL_E_BUFFER = -4,       /* buffer too small, or out of memory */
  URL_E_PARSE = -9,        /* invalid URL */
  URL_E_INVALID_ARG = -11, /* null pointer */

  BASE64_E_BUFFER = -16,   /* buffer too small */
  BASE64_E_CHARACTER = -18 /* invalid character */
};

enum {
  URL_FIELD_CAPACITY = 256,
  URL_PATH_CAPACITY = 2048,
  ED2K_NAME_CAPACITY = 1024,
  ED2K_HASH_SIZE = 16,
  MAGNET_HASH_SIZE = 20
};

/* The parts of a URL, each behind its length. */
typedef struct url_info_u {
  uint64_t schema_len;
  wchar_t schema[URL_FIELD_CAPACITY]; /* "http://" */
  uint64_t user_len;
  wchar_t user[URL_FIELD_CAPACITY]; /* decoded */
  uint64_t password_len;
  wchar_t password[URL_FIELD_CAPACITY]; /* decoded */
  uint64_t host_len;
  wchar_t host[URL_FIELD_CAPACITY];
  uint64_t port; /* the default of the scheme if the URL has none */
  uint64_t path_len;
  wchar_t path[URL_PATH_CAPACITY]; /* with the query, without the fragment */
  uint32_t code_page;              /* of user and password */
} url_info_u;

/* The file of an ed2k link. */
typedef struct ed2k_url_info_u {
  double size;                      /* in bytes, 1 to 4294967295 */
  wchar_t name[ED2K_NAME_CAPACITY]; /* zero-terminated, filled with zeros */
  unsigned char hash[ED2K_HASH_SIZE];
} ed2k_url_info_u;

/* Parses a URL.
 *
 * URL_E_INVALID_ARG: `url` or `info` is null.
 * URL_E_PARSE: the URL has no scheme, nothing between "://" and the next "/",
 *   or a port that is not a number. An empty port is 0.
 * URL_E_UNSUPPORTED: the scheme is unknown, or the URL is empty.
 * URL_E_BUFFER: a part is longer than its array. Parts are written in the order
 *   scheme, user, password, host, path; those before it are written.
 */
long parse_url_u(const wchar_t* url, size_t url_len, unsigned code_page,
                 url_info_u* info);

/* Prints a URL to `out`. `*out_len` is the capacity of `out` and becomes the
 * length of the URL. The default port of the scheme is left out; with port 0
 * the URL is empty. The lengths in `info` are not checked. `out` may overlap
 * `info`.
 *
 * URL_E_INVALID_ARG: a pointer is null.
 * URL_E_BUFFER: the URL is longer than the capacity.
 */
long url_info_to_str_u(wchar_t* out, size_t* out_len, const url_info_u* info);

/* Derives a file name from a URL, "index.html" if there is no better one.
 * `*out_len` is the capacity of `out` and becomes the length of the name.
 *
 * URL_E_INVALID_ARG: a pointer is null.
 * URL_E_BUFFER: the name is longer than the capacity.
 */
long parse_filename_u(wchar_t* out, size_t* out_len, const wchar_t* url,
                      size_t url_len, unsigned code_page);

/* Sets `*supported` to 1 if files can be downloaded by this scheme, otherwise
 * to 0. `schema` is case-insensitive and includes "://".
 * Quirk: "peer://" is not supported, although parse_url_u accepts it.
 *
 * URL_E_INVALID_ARG: a pointer is null.
 */
long is_support_schema(const char* schema, size_t schema_len,
                       unsigned* supported);

/* Parses an ed2k link to a file. The name is cut to 1023 characters.
 * Quirk: only the low 32 bits of the size are read.
 *
 * URL_E_INVALID_ARG: `url` or `info` is null.
 * URL_E_UNSUPPORTED: invalid link.
 */
long parse_ed2k_url_u(const wchar_t* url, size_t length, ed2k_url_info_u* info);

/* Parses a magnet link and writes the MAGNET_HASH_SIZE bytes of its info hash
 * to `info_hash`, which must not be null.
 *
 * URL_E_UNSUPPORTED: invalid link, or `url` is null.
 */
long parse_magnet_url_u(const wchar_t* url, size_t length,
                        unsigned char* info_hash);

/* Encodes bytes with "=" padding and writes a terminating zero.
 * `*destination_length` is the capacity of `destination` and becomes the length
 * of the text without the zero.
 *
 * BASE64_E_BUFFER: `source` is null or empty; or the capacity is too small, and
 *   `*destination_length` becomes the capacity needed, at most 4294967295:
 *   sources from 3221225470 bytes on cannot be encoded.
 */
int base64_encode(char* destination, unsigned* destination_length,
                  const unsigned char* source, unsigned source_length);

/* Decodes base64; line breaks are ignored. `*destination_length` is the
 * capacity of `destination` and becomes the number of bytes. Text of line
 * breaks alone is valid and changes nothing, not even `*destination_length`.
 *
 * BASE64_E_CHARACTER: `source` is null, empty or invalid.
 * BASE64_E_BUFFER: the capacity may be too small, and `*destination_length`
 *   becomes a sufficient capacity.
 */
int base64_decode(unsigned char* destination, unsigned* destination_length,
                  const char* source, unsigned source_length);

#ifdef __cplusplus
}
#endif

#endif /* KORVANE_KORVANE_LINKS_H_ */
