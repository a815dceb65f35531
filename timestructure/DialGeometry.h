#pragma once

#include <optional>
#include <vector>

#include "timestructure/STagSlot.h"
#include "tools/Canvas.h"
#include "tools/Density.h"

/// Where the parts of a day dial lie: two clock faces side by side, of which each turns once in 12
/// hours. All is in whole dots, and every conversion to them truncates towards zero. Lengths that
/// are told in pixels have as many dots as the density says.
namespace qv {

/// The minutes of one face, and its hours.
inline constexpr int minutesOfFace = 720;
inline constexpr int hoursOfFace = 12;

/// The halves of a dial of this size, 14 pixels apart, for the morning and the afternoon.
struct DialHalves {
  Rect left;
  Rect right;
};
DialHalves HalvesOf(int width, int height, Density density = {});

/// The square of the face in one half, centred in it with a margin of 14 pixels for the labels.
/// Counts on the half's top being 0. In a half without room the square is empty, or turned over.
Rect CalcViewport(const Rect& half, Density density = {});

/// The disc inside the ring of a face, which is 8 pixels broad; empty for faces of up to 16.
Rect DiscOf(const Rect& face, Density density = {});

/// The mark of an hour: a line from the centre to the rim.
struct HourMark {
  Point centre;
  Point rim;

  friend bool operator==(const HourMark&, const HourMark&) = default;
};

/// The mark of the hour `i`, 0 to 11, which stands at i o'clock.
HourMark HourMarkOf(int i, const Rect& face);

/// Where the label of the hour `i` starts that is `extent` large: centred on the rim at 0, 3, 6 and
/// 9 o'clock, else hung off it away from the face.
Point LabelPlace(int i, Point rim, Extent extent);

/// Minutes of a face, 0 to 720, both inclusive.
struct FaceMinutes {
  int first = 0;
  int last = 0;

  friend bool operator==(const FaceMinutes&, const FaceMinutes&) = default;
};

/// What of a slot stands on the left face, 00:00 to 12:00, or on the right one, 12:00 to 24:00.
/// Nothing, if the slot doesn't reach into it, ends before it starts or lies outside of the day.
std::optional<FaceMinutes> OnLeftFace(const STagSlot& slot);
std::optional<FaceMinutes> OnRightFace(const STagSlot& slot);

/// The sector of these minutes, which fills the disc of the face: its centre, then one point for
/// each minute. The disc must not be empty.
std::vector<Point> CreatePolygon(FaceMinutes minutes, const Rect& face, Density density = {});

}  // namespace qv
