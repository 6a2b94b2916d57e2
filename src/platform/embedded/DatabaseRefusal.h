#pragma once

#include <QString>

namespace hbx::embedded {

/** Why a project file was refused: where in it, and the reason. Thrown by what reads and writes project files. */
struct DatabaseRefusal
{
    QString place; ///< such as shape[draw_object_id=17].outline; empty for the file
    QString reason;
};

} // namespace hbx::embedded
