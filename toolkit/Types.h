#pragma once

#include <QWidget>
#include <cstdint>

#ifdef _WIN32
#include <windows.h>

using CWnd = QWidget;
#else
// The words in which hosts know the exported signatures.
using CWnd = QWidget;
using COLORREF = std::uint32_t;
using DWORD = std::uint32_t;
using BYTE = std::uint8_t;

/// The dialog was confirmed.
inline constexpr int IDOK = 1;
/// The dialog was left in any other way.
inline constexpr int IDCANCEL = 2;
#endif
