#pragma once

#include "platform/dwgx/DWGXObject.h"
#include "platform/geometry/CCurve2d.h"

#include <QString>

#include <array>

namespace dwgx {

/** Colours are drawing colour indices: 1 to 255 (1 red, 2 yellow, 3 green, 4 cyan, 5 blue, 6 magenta, 7 the colour of
 *  ink). Entities may also have the colour of their layer. */
constexpr int kColorByLayer = 256;
/** The colour that entities are drawn in where no other is told. */
constexpr int kColorInk = 7;

/** What lines and texts have in common. */
class ORVCADPLATFORM_EXPORT DWGXEntity : public DWGXObject
{
public:
    int id = 0;                ///< unique in the drawing, from 1; 0 asks the drawing for the next free one
    int color = kColorByLayer; ///< 1 to 255, or kColorByLayer
    int blockId = 0;           ///< block that the entity came in with; 0 none

protected:
    /** The id may still be open; the colour must be one. */
    bool hasSoundHead() const;
};

/** One line or arc of a drawing. */
class ORVCADPLATFORM_EXPORT DWGXLine : public DWGXEntity
{
public:
    vks::CRefPtr<vks::CCurve2d> curve; ///< mm; shared, so not to be changed in place

    /** The curve is not null, not empty and finite. */
    bool isSound() const;
};

/** One text of a drawing, on one line. */
class ORVCADPLATFORM_EXPORT DWGXText : public DWGXEntity
{
public:
    vks::CVec2<double> point; ///< lower left corner, mm
    double height = 0.0;      ///< of a capital letter, mm, above 0
    double angle = 0.0;       ///< of the writing direction, counter-clockwise, rad
    QString content;          ///< may be empty

    /** All numbers are finite and the height lies above 0. */
    bool isSound() const;
    /** Estimate of the length of the text along its direction, mm: a wide character (Chinese and the like) is as wide as
     *  high, any other 0.6 of that. */
    double width() const;
    /** Unit vector of the writing direction. */
    vks::CVec2<double> direction() const;
    /** Corners of the estimated box, counter-clockwise from the lower left. */
    std::array<vks::CVec2<double>, 4> corners() const;
    /** Moves the text so that the middle of its estimated box lies on a point. */
    void centerAt(const vks::CVec2<double> &middle);
};

} // namespace dwgx
