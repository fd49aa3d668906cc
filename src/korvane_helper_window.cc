#include "korvane_helper.h"

void KorvaneHelper::TsSetWindowPos(const Arguments&) {}

void KorvaneHelper::TsShowWindow(const Arguments&) {}

void KorvaneHelper::TsIsWindowHandle(const Arguments&) {}

void KorvaneHelper::TsBringWindowToTop(const Arguments&) {}

void KorvaneHelper::TsEnableWindow(const Arguments&) {}

void KorvaneHelper::TsGetWindowRect(const Arguments&) {}

void KorvaneHelper::TsMoveWindow(const Arguments&) {}

void KorvaneHelper::GetDisplayWindowRect(const Arguments&) {}

void KorvaneHelper::GetCursorPosition(const Arguments&) {}

void KorvaneHelper::TsGetKeyState(const Arguments&) {}

void KorvaneHelper::IsInFullScreen(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::GetWindowClassName(const Arguments& arguments) {
  answer_text(arguments, "");
}
