#pragma once

#include "platform/dwgx/DWGXModel.h"

#include <QString>

#include <memory>

namespace orvcad {

/** What a drawing file (.cadi2) holds; throws CommandFailure with file, place and reason. */
std::unique_ptr<dwgx::DWGXModel> readDrawing(const QString &path);
/** Writes a drawing with the title and the remark that it has; throws CommandFailure. */
void writeDrawing(const QString &path, const dwgx::DWGXModel &drawing);

} // namespace orvcad
