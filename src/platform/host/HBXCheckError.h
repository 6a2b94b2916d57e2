#pragma once

#include <QString>

/** What a check of a draw object found: empty when the object is acceptable. */
struct HBXCheckError
{
    QString reason; ///< one sentence, for people
};
