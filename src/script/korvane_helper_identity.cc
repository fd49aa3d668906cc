#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>

#include "platform/linux_shell.h"
#include "script/korvane_helper.h"

namespace {

constexpr char kPeerIdSuffix[] = "007V";
constexpr std::size_t kUrlCapacity = 2083;

void trace_peer_id(const std::string& peer_id) {
  // Programs search the host's log for this very line.
  std::printf("%u %s %d %s ", static_cast<unsigned>(syscall(SYS_gettid)),
              "src/korvane_helper", 1278, "GetPeerID");
  std::printf("%s\r\n", peer_id.c_str());
  std::fflush(stdout);
}

}  // namespace

void KorvaneHelper::GetPeerID(const Call& call) {
  const std::string peer_id = LinuxShell::GetMacAddrId() + kPeerIdSuffix;
  trace_peer_id(peer_id);
  set_result(call, peer_id.c_str());
}

void KorvaneHelper::ExportCompareStr(const Call& call) {
  set_result(call, 0);
  if (!accepts_exactly<kString, kString>(call)) return;
  const runtime_port::Utf16String first(call.GetIsolate(), call[0]);
  const runtime_port::Utf16String second(call.GetIsolate(), call[1]);
  if (first.data() == nullptr || second.data() == nullptr) return;
  // Quirk: UTF-16 is read as bytes, up to the first zero byte.
  set_result(call, LinuxShell::CompareStr(
                       reinterpret_cast<const char*>(first.data()),
                       reinterpret_cast<const char*>(second.data())));
}

void KorvaneHelper::ExportGetTaskTypeFromUrl(const Call& call) {
  if (!accepts<kString>(call)) return;
  const Utf8Argument<kUrlCapacity> url(call, 0);
  set_result(call, LinuxShell::GetTaskTypeFromUrl(url.c_str()));
}
