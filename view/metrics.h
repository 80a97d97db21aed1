#pragma once
// How the form model's measures meet the screen: twips to pixels, colour
// numbers to colours, and the window frame a form's outer size includes.
#include <QColor>
#include <QFont>
#include <QString>
#include <cmath>
#include <string>

namespace tessaron::view {

// 1440 twips an inch at 96 pixels an inch; Qt's high-DPI scaling does the rest.
inline constexpr double kTwipsPerPixel = 15.0;
// A form's Width and Height include its border and title bar.
inline constexpr int kFrameBorderPx = 4;
inline constexpr int kTitleBarPx = 22;
inline constexpr int kFrameWidthPx = 2 * kFrameBorderPx;
inline constexpr int kFrameHeightPx = 2 * kFrameBorderPx + kTitleBarPx;

inline int px(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }
inline int twips(int pixels) { return static_cast<int>(std::lround(pixels * kTwipsPerPixel)); }

// Colour numbers are r + 256 g + 65536 b; -1 stands for the platform's own.
inline QColor colour(long c) {
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                static_cast<int>((c >> 16) & 0xFF));
}

inline QString qs(const std::string& s) { return QString::fromStdString(s); }
inline std::string ss(const QString& s) { return s.toStdString(); }

// Line breaks from the logic are CR LF; the widgets break on LF alone.
inline QString shownText(const std::string& s) {
  QString t = qs(s);
  t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  t.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return t;
}

// The suite's font at a point size: a Latin face first, then one with Hangul.
QFont formFont(double pointSize, bool bold = false);

}  // namespace tessaron::view
