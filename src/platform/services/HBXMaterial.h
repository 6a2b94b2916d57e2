#pragma once

#include <QString>

/** One material of the region rules. */
struct HBXMaterial
{
    int number = 0; ///< from 1
    QString name;   ///< as the rules tell it
};
