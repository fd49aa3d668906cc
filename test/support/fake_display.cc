#include "fake_display.h"

#include <X11/Xproto.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <utility>
#include <vector>

namespace {

// What is told unless a test sets it; of all windows alike.
constexpr std::pair<const char*, int> kTold[] = {
    {"width", 1280},
    {"height", 1024},
    {"width_mm", 339},  // the screen
    {"root", FakeDisplay::kRoot},
    {"x", 0},
    {"y", 0},
    {"w", 1},
    {"h", 1},
    {"translated_x", 0},
    {"translated_y", 0},
    {"same_screen", 1},
    {"properties", 1},
    {"focus", 0},
    {"pointer_x", 0},
    {"pointer_y", 0},
};

constexpr std::pair<int, const char*> kNames[] = {
    {X_GetWindowAttributes, "GetWindowAttributes"},
    {X_MapWindow, "MapWindow"},
    {X_UnmapWindow, "UnmapWindow"},
    {X_ConfigureWindow, "ConfigureWindow"},
    {X_GetGeometry, "GetGeometry"},
    {X_InternAtom, "InternAtom"},
    {X_ListProperties, "ListProperties"},
    {X_SendEvent, "SendEvent"},
    {X_QueryPointer, "QueryPointer"},
    {X_TranslateCoords, "TranslateCoordinates"},
    {X_GetInputFocus, "GetInputFocus"},
    {X_QueryKeymap, "QueryKeymap"},
    {X_GetKeyboardMapping, "GetKeyboardMapping"},
    {X_GetModifierMapping, "GetModifierMapping"},
};

std::string name_of(int code) {
  for (const auto& [known, name] : kNames) {
    if (known == code) return name;
  }
  return "request";
}

constexpr std::uint32_t kRootWindow = FakeDisplay::kRoot;

// Little-endian bytes, as both our platforms write them.
class Bytes {
 public:
  Bytes& add8(int value) {
    bytes_.push_back(static_cast<char>(value));
    return *this;
  }
  Bytes& add16(int value) { return add8(value).add8(value >> 8); }
  Bytes& add32(std::uint32_t value) {
    return add16(static_cast<int>(value & 0xffff))
        .add16(static_cast<int>(value >> 16));
  }
  Bytes& zeros(std::size_t count) {
    bytes_.append(count, '\0');
    return *this;
  }
  const std::string& text() const { return bytes_; }

 private:
  std::string bytes_;
};

std::uint32_t word(const std::string& request, std::size_t index) {
  std::uint32_t value = 0;
  if (request.size() < 4 * index + sizeof value) return value;
  std::memcpy(&value, request.data() + 4 * index, sizeof value);
  return value;
}

std::size_t half(const std::string& request, std::size_t index) {
  std::uint16_t value = 0;
  std::memcpy(&value, request.data() + 2 * index, sizeof value);
  return value;
}

std::size_t padded(std::size_t length) { return (length + 3) / 4 * 4; }

int code_of(const std::string& request) {
  return static_cast<unsigned char>(request[0]);
}

std::string hexadecimal(std::uint32_t value) {
  std::ostringstream text;
  text << ' ' << std::hex << value;
  return text.str();
}

// A request as text: its name, the name of an atom, or its words.
std::string describe(const std::string& request) {
  const int code = code_of(request);
  std::string text = name_of(code);
  const bool flag = request[1] != 0;
  if (code == X_InternAtom) {
    return text + (flag ? " existing " : " ") +
           request.substr(8, half(request, 2));
  }
  if (code == X_SendEvent && flag) text += " propagated";
  for (std::size_t i = 1; 4 * i < request.size(); ++i) {
    std::uint32_t value = word(request, i);
    if (code == X_ConfigureWindow && i == 2) value &= 0xffff;  // then padding
    text += hexadecimal(value);
  }
  return text;
}

int bind_free_display() {
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  for (int number = 1000; number < 2000; ++number) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // The abstract socket of a display, which the X library tries first.
    const int length =
        std::snprintf(address.sun_path + 1, sizeof address.sun_path - 1,
                      "/tmp/.X11-unix/X%d", number);
    const auto size = static_cast<socklen_t>(
        offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(length));
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0) {
      continue;
    }
    listen(listener, SOMAXCONN);
    setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1);
    return listener;
  }
  std::perror("no free display number");
  std::abort();
}

// Reads what there is; false at the end of the connection.
bool take(int socket, std::string& unread) {
  std::array<char, 4096> bytes{};
  const ssize_t count = read(socket, bytes.data(), bytes.size());
  if (count <= 0) return false;
  unread.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

}  // namespace

FakeDisplay::FakeDisplay()
    : values_(std::begin(kTold), std::end(kTold)),
      listener_(bind_free_display()) {
  if (pipe2(wake_pipe_.data(), O_CLOEXEC) != 0) std::abort();
  thread_ = std::thread([this] { serve(); });
}

FakeDisplay::~FakeDisplay() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake();
  thread_.join();
  for (const auto& [socket, connection] : connections_) close(socket);
  close(listener_);
  close(wake_pipe_[0]);
  close(wake_pipe_[1]);
}

void FakeDisplay::set(const std::string& key, int value) {
  const std::lock_guard lock(mutex_);
  values_[key] = value;
  held_ = false;
  wake();
}

std::string FakeDisplay::next_connection() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !ended_.empty(); });
  std::string requests = ended_.front();
  ended_.pop_front();
  return requests;
}

void FakeDisplay::wait_until_held() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return held_; });
}

int FakeDisplay::value(const std::string& key) {
  const auto found = values_.find(key);
  return found == values_.end() ? -1 : found->second;
}

void FakeDisplay::wake() const {
  if (write(wake_pipe_[1], "", 1) != 1) std::abort();
}

void FakeDisplay::serve() {
  for (;;) {
    std::vector<pollfd> watched = {{listener_, POLLIN, 0},
                                   {wake_pipe_[0], POLLIN, 0}};
    for (const auto& [socket, connection] : connections_) {
      watched.push_back({socket, POLLIN, 0});
    }
    poll(watched.data(), watched.size(), -1);
    const std::lock_guard lock(mutex_);
    if (watched[1].revents != 0) {
      char byte = 0;
      if (read(wake_pipe_[0], &byte, 1) != 1 || stopping_) return;
    }
    if (watched[0].revents != 0) {
      connections_[accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)];
    }
    for (std::size_t i = 2; i < watched.size(); ++i) {
      const int socket = watched[i].fd;
      Connection& connection = connections_[socket];
      const bool open =
          watched[i].revents == 0 || take(socket, connection.unread);
      if (open && process(socket, connection)) continue;
      ended_.push_back(connection.requests);
      connections_.erase(socket);
      close(socket);
      changed_.notify_all();
    }
  }
}

// Answers the whole requests read so far; false to end the connection.
bool FakeDisplay::process(int socket, Connection& connection) {
  std::string& unread = connection.unread;
  while (unread.size() >= (connection.set_up ? 4 : 12)) {
    std::string reply;
    if (!connection.set_up) {
      // Then the name of an authorization and its data, which all may have.
      const std::size_t size =
          12 + padded(half(unread, 3)) + padded(half(unread, 4));
      if (unread.size() < size) return true;
      unread.erase(0, size);
      connection.set_up = true;
      reply = setup();
    } else {
      const std::size_t size = half(unread, 1) * 4;
      if (unread.size() < size) return true;
      const int code = code_of(unread);
      if (code == value("close_at")) return false;
      if (code == value("hold_at")) {
        held_ = true;
        changed_.notify_all();
        return true;
      }
      reply = answer(connection, unread.substr(0, size));
      unread.erase(0, size);
    }
    if (send(socket, reply.data(), reply.size(), MSG_NOSIGNAL) < 0) {
      return false;
    }
  }
  return true;
}

std::string FakeDisplay::setup() {
  Bytes screen;
  screen.add32(kRootWindow).add32(0x20).zeros(12);
  screen.add16(value("width")).add16(value("height"));
  screen.add16(value("width_mm")).add16(271).add16(1).add16(1);
  screen.add32(0x21).zeros(2).add8(24).add8(1);             // visual, depths
  screen.add8(24).add8(0).add16(1).zeros(4);                // one depth
  screen.add32(0x21).add8(4).add8(8).add16(256).zeros(16);  // one visual
  Bytes body;
  body.zeros(4).add32(0x400000).add32(0x1fffff).zeros(4);
  body.add16(0).add16(0xffff).add8(1).add8(1).add8(0).add8(0);
  body.add8(32).add8(32).add8(8).add8(255).zeros(4);
  body.add8(24).add8(32).add8(32).zeros(5);  // one format
  const std::string text = body.text() + screen.text();
  Bytes head;
  head.add8(1).add8(0).add16(11).add16(0);
  head.add16(static_cast<int>(text.size() / 4));
  return head.text() + text;
}

// Notes a request, unless the X library makes it to open or to close.
void FakeDisplay::note(Connection& connection, const std::string& request) {
  const int code = code_of(request);
  if (code == X_FreeGC) connection.closing = true;
  if (connection.closing || code == X_CreateGC || code == X_QueryExtension ||
      code == X_GetProperty) {
    return;
  }
  if (!connection.requests.empty()) connection.requests += "; ";
  connection.requests += describe(request);
}

std::string FakeDisplay::answer(Connection& connection,
                                const std::string& request) {
  const int code = code_of(request);
  ++connection.sequence;
  note(connection, request);
  Bytes body;  // behind the reply's first eight bytes
  int data = 0;
  switch (code) {
    case X_GetWindowAttributes:
      body.add32(0x21).add16(1).zeros(30);
      break;
    case X_GetGeometry:
      data = 24;
      body.add32(static_cast<std::uint32_t>(value("root")));
      body.add16(value("x")).add16(value("y"));
      body.add16(value("w")).add16(value("h"));
      break;
    case X_InternAtom:
      body.add32(next_atom_++);
      break;
    case X_ListProperties:
      body.add16(value("properties")).zeros(22);
      body.zeros(static_cast<std::size_t>(value("properties")) * 4);
      break;
    case X_QueryPointer:
      data = 1;
      // On the root window, and in the window asked about.
      body.add32(kRootWindow).add32(0).add16(-1).add16(-1);
      body.add16(value("pointer_x")).add16(value("pointer_y"));
      break;
    case X_TranslateCoords:
      data = value("same_screen");
      body.add32(0).add16(value("translated_x")).add16(value("translated_y"));
      break;
    case X_GetInputFocus:
      body.add32(static_cast<std::uint32_t>(value("focus")));
      break;
    case X_QueryKeymap:
      body.zeros(32);
      break;
    case X_GetKeyboardMapping:
      data = 1;
      body.zeros(24 + 4 * std::size_t(static_cast<unsigned char>(request[5])));
      break;
    case X_GetModifierMapping:
      data = 1;
      body.zeros(24 + 8);
      break;
    case X_QueryExtension:
    case X_GetProperty:
      break;
    default:
      if (code != value("refuse")) return "";
  }
  Bytes reply;
  if (code == value("refuse")) {
    reply.add8(X_Error)
        .add8(3)
        .add16(connection.sequence)
        .add32(word(request, 1));
    return reply.add16(0).add8(code).zeros(21).text();
  }
  if (body.text().size() < 24) body.zeros(24 - body.text().size());
  reply.add8(X_Reply).add8(data).add16(connection.sequence);
  reply.add32(static_cast<std::uint32_t>((body.text().size() - 24) / 4));
  return reply.text() + body.text();
}
