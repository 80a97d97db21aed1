#pragma once
// The colours of the statistics sheet and its graph, as Rgb gives them.

namespace tessaron::stats {

inline constexpr long kWhite = 0xFFFFFF;  // a box with the focus
inline constexpr long kRest = 0xCCFFFF;   // Rgb(255, 255, 204): a cell at rest
inline constexpr long kLimit = 0xFFE7E7;  // Rgb(231, 231, 255): a limit box at rest
inline constexpr long kBlack = 0;
inline constexpr long kOrange = 0x0080FF;  // Rgb(255, 128, 0): the low limit
inline constexpr long kBlue = 0xFF0000;    // Rgb(0, 0, 255): the high limit
inline constexpr long kGreen = 0x008000;   // Rgb(0, 128, 0): the bell curve
inline constexpr long kRed = 0x0000FF;     // Rgb(255, 0, 0): the cumulative curve

}  // namespace tessaron::stats
