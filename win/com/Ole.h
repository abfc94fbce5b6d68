#pragma once
// The system headers of COM and automation, in the order they need: windows.h first.
// clang-format off
#include <windows.h>
#include <ole2.h>
#include <oleauto.h>
#include <ocidl.h>
#include <olectl.h>
// clang-format on

// windows.h makes CopyFile and DeleteFile macros for their W functions; they are also the
// names of host members (FileManager.CopyFile, host::FileSystem), which the macros would
// rename. Our Win32 code calls the W functions by their own names.
#undef CopyFile
#undef DeleteFile
