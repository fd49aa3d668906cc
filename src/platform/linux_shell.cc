#include "platform/linux_shell.h"

#include <arpa/inet.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "text/hex_digits.h"

// Assertions hold in release builds too.
#undef NDEBUG
#include <cassert>

namespace {

// Messages name this file; programs search the host's log for them.
constexpr char kSource[] = "src/linux_shell";

class Socket {
 public:
  Socket() : descriptor_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}
  ~Socket() {
    if (is_open()) close(descriptor_);
  }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;

  bool is_open() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }
  // Leaves the socket open for the life of the process.
  void release() { descriptor_ = -1; }

 private:
  int descriptor_;
};

// Makes one interface request; a failure is reported under `line`.
template <typename Record>
bool request(const Socket& socket, unsigned long code, Record& record,
             int line) {
  if (ioctl(socket.descriptor(), code, &record) >= 0) return true;
  std::printf("ioctl: %s [%s:%d]\n", std::strerror(errno), kSource, line);
  return false;
}

constexpr std::size_t kMostInterfaces = 16;
static_assert(sizeof(ifreq) == 40, "the kernel's list holds 16 in 640 bytes");

// Finds the last interface of the kernel's list.
bool last_interface(const Socket& socket, ifreq& last) {
  std::array<ifreq, kMostInterfaces> records{};
  ifconf list{};
  list.ifc_len = sizeof(records);
  list.ifc_req = records.data();
  if (!request(socket, SIOCGIFCONF, list, 170)) return false;
  const int count = list.ifc_len / static_cast<int>(sizeof(ifreq));
  std::printf("interface num = %d\n", count);
  if (count <= 0) return false;
  last = records[static_cast<std::size_t>(count) - 1];
  std::printf("\ndevice name: %s\n", last.ifr_name);
  return true;
}

std::string hexadecimal(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    text += qk::text::kUpperHexDigits[qk::text::code_of(byte) >> 4];
    text += qk::text::kUpperHexDigits[qk::text::code_of(byte) & 15];
  }
  return text;
}

}  // namespace

std::string LinuxShell::MacId::GetMacAddr() {
  const Socket socket;
  if (!socket.is_open()) {
    std::perror("socket");
    return {};
  }
  ifreq interface;
  if (!last_interface(socket, interface)) return {};
  ifreq flags = interface;  // not used; a failure counts
  if (!request(socket, SIOCGIFFLAGS, flags, 130)) return {};
  if (!request(socket, SIOCGIFHWADDR, interface, 162)) return {};
  std::string text = hexadecimal({interface.ifr_hwaddr.sa_data, 6});
  std::printf("device mac: %s\n", text.c_str());
  return text;
}

std::string LinuxShell::MacId::GetIp() {
  constexpr char kMessage[] = "broadcast test";
  constexpr std::size_t kScratchSize = 13;
  Socket socket;  // one that is not open cannot be bound
  const int on = 1;
  setsockopt(socket.descriptor(), SOL_SOCKET, SO_BROADCAST, &on, sizeof(on));

  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(7778);
  address.sin_addr.s_addr = htonl(INADDR_ANY);
  auto* const bare = reinterpret_cast<sockaddr*>(&address);
  if (bind(socket.descriptor(), bare, sizeof(address)) != 0) return {};

  address.sin_addr.s_addr = htonl(INADDR_BROADCAST);
  sendto(socket.descriptor(), kMessage, sizeof(kMessage) - 1, 0, bare,
         sizeof(address));
  std::array<char, 1024> datagram;
  sockaddr_in sender{};
  socklen_t sender_size = sizeof(sender);
  ssize_t received = -1;
  do {
    received = recvfrom(socket.descriptor(), datagram.data(), datagram.size(),
                        0, reinterpret_cast<sockaddr*>(&sender), &sender_size);
  } while (received < 0 && errno == EINTR);
  if (received < 0) return {};
  std::string dotted = inet_ntoa(sender.sin_addr);
  if (dotted.size() >= kScratchSize) {
    std::fputs("GetIp: the address is longer than 12 characters\n", stderr);
    std::abort();
  }
  // Quirk: the socket stays open, and the port with it.
  socket.release();
  return dotted;
}

std::string LinuxShell::GetMacAddrId() { return MacId::GetMacAddr(); }

int LinuxShell::CompareStr(const char* v1, const char* v2) {
  std::setlocale(LC_COLLATE, "");
  constexpr char kFunction[] =
      "int LinuxShell::CompareStr(const char*, const char*)";
  if (v1 == nullptr) __assert_fail("v1 != NULL", kSource, 42, kFunction);
  if (v2 == nullptr) __assert_fail("v2 != NULL", kSource, 43, kFunction);
  return std::strcoll(v2, v1);
}

int LinuxShell::GetTaskTypeFromUrl(const std::string&) { return 0; }
