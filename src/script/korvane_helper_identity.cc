// Who this machine is, and two small services beside it.
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>

#include "platform/linux_shell.h"
#include "script/korvane_helper.h"

namespace {

constexpr char kPeerIdSuffix[] = "007V";
constexpr std::size_t kUrlCapacity = 2083;

void trace_peer_id(const std::string& peer_id) {
  // Host logs are searched for this very line.
  std::printf("%u %s %d %s ", static_cast<unsigned>(syscall(SYS_gettid)),
              "src/korvane_helper", 1278, "GetPeerID");
  std::printf("%s\r\n", peer_id.c_str());
  std::fflush(stdout);
}

}  // namespace

void KorvaneHelper::GetPeerID(const Arguments& arguments) {
  const std::string peer_id = LinuxShell::GetMacAddrId() + kPeerIdSuffix;
  trace_peer_id(peer_id);
  answer_text(arguments, peer_id.c_str());
}

void KorvaneHelper::ExportCompareStr(const Arguments& arguments) {
  answer_number(arguments, 0);
  if (!accepts_exactly<Kind::kText, Kind::kText>(arguments)) return;
  v8::Isolate* isolate = arguments.GetIsolate();
  const runtime_port::Utf16Text first(isolate, arguments[0]);
  const runtime_port::Utf16Text second(isolate, arguments[1]);
  if (first.units() == nullptr || second.units() == nullptr) return;
  answer_number(arguments, LinuxShell::CompareStr(
                               reinterpret_cast<const char*>(first.units()),
                               reinterpret_cast<const char*>(second.units())));
}

void KorvaneHelper::ExportGetTaskTypeFromUrl(const Arguments& arguments) {
  if (!accepts<Kind::kText>(arguments)) return;
  const Utf8Argument<kUrlCapacity> url(arguments, 0);
  answer_number(arguments, LinuxShell::GetTaskTypeFromUrl(url.c_str()));
}
