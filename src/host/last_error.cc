#include <korvane/korvane_host.h>

namespace {

thread_local unsigned last_error = 0;

}  // namespace

void qk::set_last_error(unsigned code) { last_error = code; }

unsigned qk::get_last_error() { return last_error; }
