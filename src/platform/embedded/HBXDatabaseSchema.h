#pragma once

#include "ORVCADPlatformExport.h"

#include <QByteArray>

namespace hbx::embedded {

class SqliteConnection;

/** Tables of a project file (docs/formats/hbxdb.md). */
namespace schema {

/** "HBXP": tells a project file from the SQLite files of other programs. */
constexpr quint32 kApplicationId = 0x48425850;
constexpr quint32 kVersion = 1;
/** Length of the header that an SQLite file starts with. */
constexpr int kHeaderSize = 100;

/** Throws DatabaseRefusal when the first bytes of a file are not those of a project file of this form. */
ORVCADPLATFORM_EXPORT void checkHeader(const QByteArray &header);
/** Makes the tables of an empty database. */
ORVCADPLATFORM_EXPORT void create(SqliteConnection &connection);
/** Throws DatabaseRefusal when the database holds anything else than these tables, or one of them in another shape. */
ORVCADPLATFORM_EXPORT void check(SqliteConnection &connection);

} // namespace schema

} // namespace hbx::embedded
