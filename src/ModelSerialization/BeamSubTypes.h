#pragma once

#include "beam/BeamKeys.h"

/** What the sub-type of a beam, its kind of section, says when it is made in the host. */
namespace beam {

/** Sub-types that are made as another one. */
struct SubTypeChange
{
    qint64 elementType;
    qint64 from;
    qint64 to;
};
inline constexpr SubTypeChange kSubTypeChanges[] = {{type::foundationBeam, 135, 134}, {type::beam, 12, 11}};

/** Sub-types of beams whose section may be an outline. */
inline constexpr qint64 kOutlinedSubTypes[] = {11, 148, 134};

/** The sub-type that a beam is made with. */
inline qint64 subTypeMade(qint64 elementType, qint64 subType)
{
    for (const SubTypeChange &change : kSubTypeChanges)
        if (elementType == change.elementType && subType == change.from)
            return change.to;
    return subType;
}

inline bool mayHaveOutline(qint64 subType) { return hbx::isOneOf(subType, kOutlinedSubTypes); }

} // namespace beam
