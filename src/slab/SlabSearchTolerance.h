#pragma once

/** When slab elements are the same: the one home of the distances, angles and ratios of the search. */
namespace slab {

constexpr double kSearchReach = 2.0;        ///< mm between boxes that count as touching in the index
constexpr double kOutlineTolerance = 1.0;   ///< mm, for an outline that is asked for as such
constexpr double kSameSlabTolerance = 15.0; ///< mm, for outlines and net areas of boards and holes
constexpr double kSameBarTolerance = 10.0;  ///< mm, for the areas of working bars
constexpr double kSameLineTolerance = 1.0;  ///< mm, for lines of supports and top bars

/** mm that a support must overlap a slab to take area from it; negative, as relations are told to go by thickness. */
constexpr double kSupportOverlap = -1.0;

constexpr double kNetAreaRepairDistance = 1.0; ///< mm, for vertices of a net area that are one
constexpr double kNetAreaRepairAngle = 0.001;  ///< rad, for sides of a net area that go on in one line

/** Of two boards that are the same, the larger one has at most so many times the area of the smaller one, and the
 *  smaller one at most so many times that of their common part. */
constexpr double kLargestAreaRatio = 3.0;

constexpr double kSameDirectionAngle = 0.17453292519943295; ///< rad, 10 degrees; directions that far apart are the same
constexpr double kAngleNoise = 1e-12;                       ///< rad, what double arithmetic makes of an angle
constexpr double kNormalizeBelowAngle = 0.4014;             ///< rad, exclusive
constexpr double kNormalizeAboveAngle = 3.542992653589793;  ///< rad, exclusive; half a turn more than the other
constexpr double kNoStretch = 0.5; ///< a stretch length from minus this to this, in the host's unit, is none

} // namespace slab
