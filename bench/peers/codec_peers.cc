#include <apr_encode.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>

#include "peers.h"

namespace {

const unsigned char* octets(const std::string& bytes) {
  return reinterpret_cast<const unsigned char*>(bytes.data());
}

unsigned char* octets(std::string& bytes) {
  return reinterpret_cast<unsigned char*>(bytes.data());
}

apr_ssize_t size_of(const std::string& bytes) {
  return static_cast<apr_ssize_t>(bytes.size());
}

}  // namespace

bool peers::openssl_encode_base64(const std::string& bytes, std::string& out) {
  return EVP_EncodeBlock(octets(out), octets(bytes),
                         static_cast<int>(bytes.size())) > 0;
}

bool peers::openssl_decode_base64(const std::string& text, std::string& out) {
  return EVP_DecodeBlock(octets(out), octets(text),
                         static_cast<int>(text.size())) > 0;
}

bool peers::openssl_encode_base16(const std::string& bytes, std::string& out) {
  std::size_t size = 0;
  return OPENSSL_buf2hexstr_ex(out.data(), out.size(), &size, octets(bytes),
                               bytes.size(), '\0') == 1;
}

bool peers::apr_decode_base16(const std::string& text, std::string& out) {
  apr_size_t size = 0;
  return apr_decode_base16_binary(octets(out), text.data(), size_of(text),
                                  APR_ENCODE_NONE, &size) == APR_SUCCESS;
}

bool peers::apr_encode_base32(const std::string& bytes, std::string& out) {
  apr_size_t size = 0;
  return apr_encode_base32_binary(out.data(), octets(bytes), size_of(bytes),
                                  APR_ENCODE_NOPADDING, &size) == APR_SUCCESS;
}

bool peers::apr_decode_base32(const std::string& text, std::string& out) {
  apr_size_t size = 0;
  return apr_decode_base32_binary(octets(out), text.data(), size_of(text),
                                  APR_ENCODE_NONE, &size) == APR_SUCCESS;
}
