#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

/** Packs and unpacks archives, which drawings travel in. They are zip files, compressed with deflate.
 *
 *  Archives come from anywhere. A whole archive is refused, before anything is written, when
 *    - a member would land outside the folder: an absolute path, a "..", a backslash or a colon in a name;
 *    - a member is neither a file nor a folder (a symbolic link, a device);
 *    - its members unpack to more than kMaxUnpackedBytes together.
 *  A member whose content is longer than the archive says, is damaged or encrypted, and one of a name that is there
 *  already, ends the unpacking. Every failure is a false result, and what was unpacked until then is taken away again. */
class ORVCADPLATFORM_EXPORT HBCZipFile
{
public:
    /** What all members of one archive may unpack to: 1 GiB. */
    static constexpr quint64 kMaxUnpackedBytes = quint64(1) << 30;

    /** Packs files into a new archive, which takes the place of a file that is there. A member is named after the file,
     *  without its folder. False, and no new archive, for an empty list, for two files of one name, and when a file
     *  cannot be read or the archive cannot be written. */
    static bool compressFiles(const QStringList &files, const QString &archive);
    /** Unpacks all members into a folder, which is there, and below it. No file that is there is replaced. An archive
     *  without members is unpacked with success. */
    static bool extractFiles(const QString &archive, const QString &folder);
    /** Unpacks the one member of that name into a file, which takes the place of one that is there. False when the archive
     *  has no such file; what the rest of the archive holds is not looked at. */
    static bool uncompressFile(const QString &archive, const QString &member, const QString &file);
};
