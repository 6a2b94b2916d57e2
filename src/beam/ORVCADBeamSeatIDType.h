#pragma once

/** Which of its two names tells what a seat is. Other numbers are carried as they come and are neither. */
enum ORVCADBeamSeatIDType : int {
    kSeatIsDrawObj = 0, ///< the id of a draw object of the host
    kSeatIsSegment = 1  ///< the id of a segment that has no draw object yet
};
