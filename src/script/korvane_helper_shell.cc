// Shell, processes and files. Only the first two functions do anything here;
// the others test and read what the desktop product tests and reads, then
// answer a constant. A test on which nothing depends is left out.
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

void KorvaneHelper::System(const Arguments& arguments) {
  if (!accepts<Kind::kText>(arguments)) return;
  const Utf8Argument<kCommandCapacity> command(arguments, 0);
  answer_text(arguments, "");
  const Pipe pipe = start(command.c_str());
  if (pipe == nullptr) return;
  // One read of a stream comes back short only at its end; the last byte is
  // never read into and so ends the text.
  const auto output = std::make_unique<std::array<char, kOutputCapacity>>();
  static_cast<void>(
      std::fread(output->data(), 1, kOutputCapacity - 1, pipe.get()));
  answer_text(arguments, output->data());
}

void KorvaneHelper::ExportGetLogicalDriveStrings(const Arguments&) {
  const InheritedStreams streams;
  static_cast<void>(std::system("df -h > tmp.text"));
}

void KorvaneHelper::AsynShellExecuteAndWait(const Arguments& arguments) {
  // Unlike its siblings, it reads its texts whatever their types.
  if (accepts<Kind::kAny, Kind::kAny, Kind::kAny, Kind::kFunction>(arguments)) {
    read_and_drop_texts(arguments, 3);
  }
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsyncShellExecute(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsyncUnZipFile(const Arguments& arguments) {
  if (accepts<Kind::kText, Kind::kText, Kind::kFunction>(arguments)) {
    read_and_drop_texts(arguments, 2);
  }
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsynCopyFile(const Arguments& arguments) {
  AsyncUnZipFile(arguments);
}

void KorvaneHelper::AsynMoveFile(const Arguments& arguments) {
  AsyncUnZipFile(arguments);
}

void KorvaneHelper::AsyncUpgradeP2spTask(const Arguments& arguments) {
  AsyncUnZipFile(arguments);
}

void KorvaneHelper::AsyncUpgradeEmuleTask(const Arguments& arguments) {
  if (accepts<Kind::kText, Kind::kText, Kind::kText, Kind::kFunction>(
          arguments)) {
    read_and_drop_texts(arguments, 3);
  }
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsyncUpgradeBtTask(const Arguments& arguments) {
  AsyncUpgradeEmuleTask(arguments);
}

void KorvaneHelper::AsynDeleteFile(const Arguments& arguments) {
  answer_integer(arguments, -1);
}

void KorvaneHelper::AsynPreLoadFile(const Arguments& arguments) {
  if (accepts<Kind::kText>(arguments)) read_and_drop_texts(arguments, 1);
  answer_integer(arguments, 0);
}

void KorvaneHelper::QueryFileExists(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::ExportQueryFileExists(const Arguments& arguments) {
  if (accepts<Kind::kText>(arguments)) read_and_drop_texts(arguments, 1);
  answer_boolean(arguments, false);
}

void KorvaneHelper::ExportIsFilePathValid(const Arguments& arguments) {
  if (accepts<Kind::kText>(arguments)) read_and_drop_texts(arguments, 1);
  answer_boolean(arguments, false);
}

void KorvaneHelper::SetFileAttributes(const Arguments& arguments) {
  if (accepts<Kind::kText, Kind::kNumber>(arguments)) {
    read_and_drop_texts(arguments, 1);
  }
  answer_boolean(arguments, false);
}

void KorvaneHelper::InitUpgrade(const Arguments& arguments) {
  if (accepts<Kind::kText>(arguments)) read_and_drop_texts(arguments, 1);
  answer_boolean(arguments, false);
}

void KorvaneHelper::EmptyWorkingSet(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::CreateShortcut(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::AsyncCalcuteFileMD5(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsyncFindProcess(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::TerminateProcessByName(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::SetProcessEnvironmentVariable(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::RemoveProcessEnvironmentVariable(
    const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::UpdateDesktopIcon(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::ShutDownMachine(const Arguments&) {}

void KorvaneHelper::SuspendMachine(const Arguments&) {}

void KorvaneHelper::RebootMachine(const Arguments&) {}
