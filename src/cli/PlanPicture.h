#pragma once

#include <QByteArray>

namespace orvcad {

/** Pixels that a picture may be wide: below the first nothing can be seen on a plan, and beyond the last it takes more
 *  memory than most machines can spare. */
constexpr int kLeastPixels = 100;
constexpr int kMostPixels = 10000;
constexpr int kUsualPixels = 2400;

/** An SVG page as a PNG picture, as high as its form asks for. The program rsvg-convert paints it, so that no other verb
 *  has to load what painting needs. Throws CommandFailure with what that program says, and where it is not there.
 *  @param width  pixels */
QByteArray pngOf(const QByteArray &svg, int width);

} // namespace orvcad
