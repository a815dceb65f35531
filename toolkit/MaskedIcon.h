#pragma once

#include <QIcon>
#include <QImage>

namespace qv {

/// `image` with every pixel transparent that has the colour of the first stored one. Bitmaps are
/// stored from the bottom up, so that this is the pixel at the bottom left.
QImage Masked(const QImage& image);

/// The picture at `path`, masked, and its doubled form "<name>@2x.png" for dense screens if there
/// is one. A missing file gives a null icon.
QIcon MaskedIcon(const QString& path);

}  // namespace qv
