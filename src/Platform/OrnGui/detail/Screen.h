#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace ORNGUI {

/// The screen that a window is on, the first one while there is no telling.
inline QScreen* ScreenOf(const QWidget& widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return widget.screen();
#else
    const QWindow* pWindow = widget.window()->windowHandle();
    return pWindow != nullptr ? pWindow->screen() : QGuiApplication::primaryScreen();
#endif
}

}  // namespace ORNGUI
