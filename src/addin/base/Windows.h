#pragma once

/// The system's own headers, for all that the add-in takes of them. Its macros rename every member of their names, so
/// those that the platform has, too, are taken away.

#include <oaidl.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <windows.h> // comes first: the others need it

#undef CopyFile
#undef CreateFile
#undef DeleteFile
#undef GetObject
#undef MessageBox
#undef MoveFile
#undef Yield
