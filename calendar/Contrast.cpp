#include "calendar/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qv {
namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

/// Linear light of red, green and blue to how the three are seen.
constexpr std::array<Matrix, 4> sights = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},  // common sight
    // Without cones for long, middle and short waves.
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

/// Linear light of sRGB to CIE XYZ, each row divided by the white of D65.
constexpr Matrix toRelativeXyz = {{{0.4124 / 0.9505, 0.3576 / 0.9505, 0.1805 / 0.9505},
                                   {0.2126, 0.7152, 0.0722},
                                   {0.0193 / 1.089, 0.1192 / 1.089, 0.9505 / 1.089}}};

double Linear(Colour colour, int shift) {
  const double value = (colour >> shift & 0xFF) / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Triple LightOf(Colour colour) { return {Linear(colour, 0), Linear(colour, 8), Linear(colour, 16)}; }

Triple Times(const Matrix& matrix, const Triple& light) {
  Triple product{};
  for (std::size_t i = 0; i < product.size(); ++i) {
    for (std::size_t k = 0; k < light.size(); ++k) {
      product[i] += matrix[i][k] * light[k];
    }
  }
  return product;
}

double Luminance(Colour colour) { return Times(toRelativeXyz, LightOf(colour))[1]; }

/// The root of CIE Lab, which is a line near black.
double LabRoot(double value) {
  constexpr double knee = 6.0 / 29;
  return value > knee * knee * knee ? std::cbrt(value) : value / (3 * knee * knee) + 4.0 / 29;
}

Triple LabOf(const Triple& light) {
  Triple xyz = Times(toRelativeXyz, light);
  std::transform(xyz.begin(), xyz.end(), xyz.begin(), LabRoot);
  return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

Triple SeenWith(const Matrix& sight, Colour colour) {
  Triple light = Times(sight, LightOf(colour));
  for (double& part : light) {
    part = std::clamp(part, 0.0, 1.0);
  }
  return LabOf(light);
}

double Distance(const Triple& first, const Triple& second) {
  return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

}  // namespace

double ContrastOf(Colour first, Colour second) {
  constexpr double glare = 0.05;
  const auto [dark, light] = std::minmax({Luminance(first), Luminance(second)});
  return (light + glare) / (dark + glare);
}

Colour LegibleInkOn(Colour ground) {
  constexpr Colour black = 0x000000;
  constexpr Colour white = 0xFFFFFF;
  return ContrastOf(ground, black) >= ContrastOf(ground, white) ? black : white;
}

bool LookAlike(Colour first, Colour second) {
  constexpr double leastDistance = 15;
  return std::any_of(sights.begin(), sights.end(), [first, second](const Matrix& sight) {
    return Distance(SeenWith(sight, first), SeenWith(sight, second)) < leastDistance;
  });
}

}  // namespace qv
