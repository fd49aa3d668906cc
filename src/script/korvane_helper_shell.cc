#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "script/korvane_helper.h"

namespace {

constexpr std::size_t kCommandCapacity = 1024;
constexpr std::size_t kOutputCapacity = 20480;

struct PipeCloser {
  // Waits for the command to end.
  void operator()(std::FILE* pipe) const { pclose(pipe); }
};
using Pipe = std::unique_ptr<std::FILE, PipeCloser>;

// While it lives, a standard stream that is open is inherited by commands. The
// runtime marks them close-on-exec, and a command without one writes its
// messages into the first file that it opens.
class InheritedStream {
 public:
  explicit InheritedStream(int descriptor)
      : descriptor_(descriptor), flags_(fcntl(descriptor, F_GETFD)) {
    set(flags_ & ~FD_CLOEXEC);
  }
  ~InheritedStream() { set(flags_); }
  InheritedStream(const InheritedStream&) = delete;
  InheritedStream& operator=(const InheritedStream&) = delete;

 private:
  void set(int flags) const {
    if (flags_ >= 0) fcntl(descriptor_, F_SETFD, flags);
  }

  const int descriptor_;
  const int flags_;  // negative when it is closed
};

struct InheritedStreams {
  InheritedStream input{STDIN_FILENO};
  InheritedStream output{STDOUT_FILENO};
  InheritedStream error{STDERR_FILENO};
};

Pipe start(const char* command) {
  const InheritedStreams streams;
  return Pipe(popen(command, "r"));
}

}  // namespace

void KorvaneHelper::System(const Call& call) {
  if (!accepts<kString>(call)) return;
  const Utf8Argument<kCommandCapacity> command(call, 0);
  set_result(call, "");
  const Pipe pipe = start(command.c_str());
  if (pipe == nullptr) return;
  // Only the end of the stream makes a read return less. The last byte stays
  // zero.
  const auto output = std::make_unique<std::array<char, kOutputCapacity>>();
  static_cast<void>(
      std::fread(output->data(), 1, kOutputCapacity - 1, pipe.get()));
  set_result(call, output->data());
}

void KorvaneHelper::ExportGetLogicalDriveStrings(const Call&) {
  const InheritedStreams streams;
  static_cast<void>(std::system("df -h > tmp.text"));
}

// The other functions only test and read their arguments, as they do on other
// platforms.

void KorvaneHelper::AsynShellExecuteAndWait(const Call& call) {
  // Quirk: unlike in its siblings, the strings may be of any type.
  accepts_and_reads<kAny, kAny, kAny, kFunction>(call);
  set_result(call, 0);
}

void KorvaneHelper::AsyncUnZipFile(const Call& call) {
  accepts_and_reads<kString, kString, kFunction>(call);
  set_result(call, 0);
}

void KorvaneHelper::AsyncUpgradeEmuleTask(const Call& call) {
  accepts_and_reads<kString, kString, kString, kFunction>(call);
  set_result(call, 0);
}

void KorvaneHelper::AsynPreLoadFile(const Call& call) {
  accepts_and_reads<kString>(call);
  set_result(call, 0);
}

void KorvaneHelper::ExportIsFilePathValid(const Call& call) {
  accepts_and_reads<kString>(call);
  set_result(call, false);
}

void KorvaneHelper::SetFileAttributes(const Call& call) {
  accepts_and_reads<kString, kNumber>(call);
  set_result(call, false);
}

void KorvaneHelper::InitUpgrade(const Call& call) {
  accepts_and_reads<kString>(call);
  set_result(call, false);
}
