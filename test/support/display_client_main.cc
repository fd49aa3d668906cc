// display_client COMMAND...: runs a command beside a client of the display.
//   create X Y WIDTH HEIGHT SHOWN   makes a window, answers its identifier
//   destroy WINDOW
//   state WINDOW     answers "X Y WIDTH HEIGHT shown" (or "hidden")
//   stacking WINDOW...   answers the windows, bottom first
//   pointer X Y      puts the pointer there
#include <string>

#include "display_client.h"
#include "serve_commands.h"

namespace {

std::string create(DisplayClient& client, std::istream& words) {
  DisplayClient::Rectangle place{};
  int shown = 0;
  for (int& value : place) words >> value;
  words >> shown;
  const Window window = client.create(place);
  if (shown != 0) client.show(window);
  return std::to_string(window);
}

std::string state(const DisplayClient& client, Window window) {
  std::string text;
  for (const int value : client.rectangle(window)) {
    text += std::to_string(value) + " ";
  }
  return text + (client.is_shown(window) ? "shown" : "hidden");
}

std::string stacking(const DisplayClient& client, std::istream& words) {
  std::vector<Window> windows;
  for (Window window = None; words >> window;) windows.push_back(window);
  std::string text;
  for (const Window window : client.stacking(windows)) {
    text += (text.empty() ? "" : " ") + std::to_string(window);
  }
  return text;
}

std::string answer(DisplayClient& client, std::istream& words) {
  std::string command;
  Window window = None;
  words >> command;
  if (command == "create") return create(client, words);
  if (command == "stacking") return stacking(client, words);
  if (command == "pointer") {
    int x = 0;
    int y = 0;
    words >> x >> y;
    XWarpPointer(client.display(), None, client.root(), 0, 0, 0, 0, x, y);
    XSync(client.display(), False);
    return "";
  }
  words >> window;
  if (command == "state") return state(client, window);
  if (command == "destroy") client.destroy(window);
  return "";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  DisplayClient client;
  return serve_commands(
      argv + 1, [&](std::istream& words) { return answer(client, words); });
}
