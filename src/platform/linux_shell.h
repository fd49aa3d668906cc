// Facts about this Linux machine and its user's locale.
#ifndef KORVANE_PLATFORM_LINUX_SHELL_H_
#define KORVANE_PLATFORM_LINUX_SHELL_H_

#include <string>

class LinuxShell {
 public:
  class MacId {
   public:
    // The hardware address of the last interface that the kernel lists (those
    // with an IPv4 address, at most 16; loopback counts): 12 upper-case
    // hexadecimal digits. Empty when it cannot be read. Prints what it finds
    // and why it fails on standard output; only a socket that cannot be opened
    // is reported on standard error.
    static std::string GetMacAddr();

    // This machine's dotted IPv4 address: broadcasts to UDP port 7778 and
    // returns the sender of the first datagram received there, for which it
    // waits without limit. Empty when the port is taken.
    // Quirk: after a success the socket stays open, so a second call in the
    // process returns an empty string. An address of 13 characters or more
    // terminates the process.
    static std::string GetIp();
  };

  // The same as MacId::GetMacAddr().
  static std::string GetMacAddrId();

  // Quirk: strcoll of (v2, v1), so negative when v2 collates before v1. Sets
  // the process's collation locale from the environment. A null pointer
  // terminates the process with an assertion message.
  static int CompareStr(const char* v1, const char* v2);

  // The kind of download task for a URL: always 0 on this platform.
  static int GetTaskTypeFromUrl(const std::string& url);
};

#endif  // KORVANE_PLATFORM_LINUX_SHELL_H_
