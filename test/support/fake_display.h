// A display server of the tests' own. It answers what the X library asks from
// a table of numbers, fails where it is told to, and notes every request, so
// that a test sees what went over the wire, connection by connection.
#ifndef KORVANE_TEST_FAKE_DISPLAY_H_
#define KORVANE_TEST_FAKE_DISPLAY_H_

#include <array>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <thread>

class FakeDisplay {
 public:
  static constexpr int kRoot = 0x100;

  // Listens on a free display number and puts it into DISPLAY.
  FakeDisplay();
  ~FakeDisplay();
  FakeDisplay(const FakeDisplay&) = delete;
  FakeDisplay& operator=(const FakeDisplay&) = delete;

  // Sets one number: of what is told (see the table in the source), or
  // "refuse", "close_at", "hold_at": the request code that is answered with an
  // error, ends the connection, or waits until hold_at is set anew.
  void set(const std::string& key, int value);

  // The requests of the oldest connection not told yet, "; " between them,
  // without those of opening and closing; waits until it has ended.
  std::string next_connection();

  // Waits until a request waits at hold_at.
  void wait_until_held();

 private:
  struct Connection {
    std::string unread;
    std::string requests;
    std::uint16_t sequence = 0;
    bool set_up = false;
    bool closing = false;  // what follows is the library's own
  };

  static void note(Connection& connection, const std::string& request);
  void serve();
  bool process(int socket, Connection& connection);
  std::string answer(Connection& connection, const std::string& request);
  std::string setup();
  int value(const std::string& key);
  void wake() const;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<std::string, int> values_;
  std::deque<std::string> ended_;
  bool held_ = false;
  bool stopping_ = false;
  std::uint32_t next_atom_ = 0x200;
  std::map<int, Connection> connections_;
  std::array<int, 2> wake_pipe_{};
  int listener_ = -1;
  std::thread thread_;
};

#endif  // KORVANE_TEST_FAKE_DISPLAY_H_
