#pragma once
// The system headers of COM and automation, in the order they need: windows.h first.
// clang-format off
#include <windows.h>
#include <ole2.h>
#include <oleauto.h>
#include <ocidl.h>
#include <olectl.h>
// clang-format on
