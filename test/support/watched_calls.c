/* Preloaded before a program: an interface request named in FAILED_REQUEST
 * fails, and what is sent is told on standard error. */
#include <arpa/inet.h>
#include <errno.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

int ioctl(int descriptor, unsigned long request, ...) {
  const char* failed = getenv("FAILED_REQUEST");
  va_list arguments;
  va_start(arguments, request);
  void* record = va_arg(arguments, void*);
  va_end(arguments);
  if (failed != NULL && strtoul(failed, NULL, 0) == request) {
    errno = EIO;
    return -1;
  }
  return (int)syscall(SYS_ioctl, descriptor, request, record);
}

ssize_t sendto(int descriptor, const void* bytes, size_t size, int flags,
               const struct sockaddr* address, socklen_t address_size) {
  const struct sockaddr_in* to = (const struct sockaddr_in*)address;
  fprintf(stderr, "%.*s to %s:%d\n", (int)size, (const char*)bytes,
          inet_ntoa(to->sin_addr), ntohs(to->sin_port));
  return syscall(SYS_sendto, descriptor, bytes, size, flags, address,
                 address_size);
}
