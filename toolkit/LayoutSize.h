#pragma once

#include <QWidget>
#include <cstdint>

/// A size in a layout: a share in per cent (0 to 100) of the room that the fixed items leave over,
/// one of the words below, or a number of pixels made by `qv::PixelSize`.
using LayoutSize = std::uint32_t;

/// The standard spacing as a gap; the height of a button as the size of anything else.
inline constexpr LayoutSize LayoutSizeStandard = 0xFF000000;
/// The height of a one-line label or check box.
inline constexpr LayoutSize LayoutSizeLabel = 0xFEFFFFFF;
/// The height of a one-line edit or combo box.
inline constexpr LayoutSize LayoutSizeEdit = 0xFEFFFFFE;
/// The wide margin beside an OK and Cancel pair.
inline constexpr LayoutSize LayoutSizeWide = 0xFEFFFFFC;
/// The small gap between a label and the row below it.
inline constexpr LayoutSize LayoutSizeLabelGap = 0xFEFFFFFA;

namespace qv {

/// The pixels behind the size words.
struct LayoutMetrics {
  int standard;  ///< `LayoutSizeStandard` as a gap
  int button;    ///< `LayoutSizeStandard` as the height of a control
  int label;
  int edit;
  int wide;
  int labelGap;

  bool operator==(const LayoutMetrics&) const = default;
};

/// The pixels that suit the font and the style of `widget`; null stands for the application's own.
LayoutMetrics MetricsOf(const QWidget* widget);

/// The size of exactly so many pixels. Takes 0 to 16777215; what lies outside is moved there.
LayoutSize PixelSize(int pixels);

/// Whether `size` is a share in per cent.
bool IsShare(LayoutSize size);

/// The pixels of a fixed size as a gap. Shares, and numbers that are no size at all, give 0.
int GapPixels(LayoutSize size, const LayoutMetrics& metrics);
/// The pixels of a fixed size as the extent of a control or a nested layout. Otherwise as above.
int ItemPixels(LayoutSize size, const LayoutMetrics& metrics);

}  // namespace qv
