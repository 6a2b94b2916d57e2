#include "platform/services/HBCZipFile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QVector>

#include <zip.h>

#include <algorithm>
#include <array>
#include <memory>

namespace {

struct Discard
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
struct CloseFile
{
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, Discard>; // given up without a write, unless it is closed before
using PackedFile = std::unique_ptr<zip_file_t, CloseFile>;

constexpr qint64 kBufferSize = 1 << 16;

Archive opened(const QString &path, int flags)
{
    return Archive(zip_open(QFile::encodeName(path).constData(), flags, nullptr));
}

/** A member as the archive's directory tells of it. */
struct Member
{
    zip_uint64_t index;
    QString name;
    quint64 size;

    bool isFolder() const { return name.endsWith(u'/'); }
};

/** Bits of a file mode as Unix writes it, which is where links and devices show; 0 from other systems. */
constexpr zip_uint32_t kModeShift = 16;
constexpr zip_uint32_t kTypeBits = 0170000;
constexpr zip_uint32_t kFileType = 0100000;
constexpr zip_uint32_t kFolderType = 0040000;

bool isFileOrFolder(zip_t *archive, zip_uint64_t index)
{
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) != 0)
        return false;
    const zip_uint32_t type = attributes >> kModeShift & kTypeBits;
    return type == 0 || type == kFileType || type == kFolderType;
}

/** Whether a file of that name stands in the folder it is unpacked into, on any system. */
bool staysInside(const QString &name)
{
    if (name.contains(u'\\') || name.contains(u':'))
        return false;
    const QStringList steps = (name.endsWith(u'/') ? name.chopped(1) : name).split(u'/');
    return std::none_of(steps.begin(), steps.end(), [](const QString &step) {
        return step.isEmpty() || step == QLatin1String(".") || step == QLatin1String("..");
    });
}

/** False for a member that is not to be unpacked. */
bool describe(zip_t *archive, zip_uint64_t index, Member &member)
{
    zip_stat_t found;
    constexpr zip_uint64_t kNeeded = ZIP_STAT_NAME | ZIP_STAT_SIZE;
    if (zip_stat_index(archive, index, 0, &found) != 0 || (found.valid & kNeeded) != kNeeded)
        return false;
    member = {index, QString::fromUtf8(found.name), found.size};
    return isFileOrFolder(archive, index);
}

/** False for an archive that is not to be unpacked. */
bool listMembers(zip_t *archive, QVector<Member> &members)
{
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    quint64 left = HBCZipFile::kMaxUnpackedBytes;
    for (zip_int64_t index = 0; index < count; ++index) {
        Member member;
        if (!describe(archive, static_cast<zip_uint64_t>(index), member) || !staysInside(member.name) ||
            member.size > left)
            return false;
        left -= member.size;
        members.append(member);
    }
    return true;
}

/** Never writes more than the directory of the archive told, so what was checked there holds. */
bool copyContent(zip_t *archive, const Member &member, QIODevice &target)
{
    const PackedFile file(zip_fopen_index(archive, member.index, 0));
    if (!file)
        return false;
    std::array<char, kBufferSize> buffer;
    quint64 left = member.size;
    for (;;) {
        const zip_int64_t size = zip_fread(file.get(), buffer.data(), buffer.size());
        if (size <= 0)
            return size == 0 && left == 0;
        if (static_cast<quint64>(size) > left || target.write(buffer.data(), size) != size)
            return false;
        left -= static_cast<quint64>(size);
    }
}

/** Unpacks members into a folder, and takes away what it made there unless all of it succeeds. */
class Extraction
{
public:
    Extraction(zip_t *archive, const QString &folder) : m_archive(archive), m_folder(QDir(folder).absolutePath()) {}
    ~Extraction()
    {
        for (const QString &path : m_files)
            QFile::remove(path);
        for (auto path = m_folders.crbegin(); path != m_folders.crend(); ++path)
            m_folder.rmdir(*path);
    }
    Extraction(const Extraction &) = delete;
    Extraction &operator=(const Extraction &) = delete;

    bool unpack(const Member &member)
    {
        const QString parent = member.name.section(u'/', 0, -2);
        return makeFolders(parent) && (member.isFolder() || unpackFile(member));
    }
    void keep()
    {
        m_files.clear();
        m_folders.clear();
    }

private:
    /** Makes the folders of a path from the top. */
    bool makeFolders(const QString &path)
    {
        for (int end = path.isEmpty() ? -1 : 0; end >= 0;) {
            end = path.indexOf(u'/', end + 1);
            const QString folder = m_folder.filePath(path.left(end));
            if (QFileInfo(folder).isDir())
                continue;
            if (!m_folder.mkdir(folder))
                return false;
            m_folders.append(folder);
        }
        return true;
    }
    bool unpackFile(const Member &member)
    {
        QFile file(m_folder.filePath(member.name));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return false;
        m_files.append(file.fileName());
        return copyContent(m_archive, member, file) && file.flush();
    }

    zip_t *m_archive;
    QDir m_folder;
    QStringList m_files;
    QStringList m_folders;
};

bool addFile(zip_t *archive, const QString &path)
{
    zip_source_t *source = zip_source_file(archive, QFile::encodeName(path).constData(), 0, -1);
    if (!source)
        return false;
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    if (zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8) >= 0)
        return true;
    zip_source_free(source);
    return false;
}

} // namespace

bool HBCZipFile::compressFiles(const QStringList &files, const QString &archive)
{
    Archive content = opened(archive, ZIP_CREATE | ZIP_TRUNCATE);
    if (files.isEmpty() || !content)
        return false;
    const auto isMissing = [](const QString &path) { return !QFileInfo(path).isFile(); };
    if (std::any_of(files.begin(), files.end(), isMissing))
        return false;
    if (!std::all_of(files.begin(), files.end(), [&](const QString &path) { return addFile(content.get(), path); }))
        return false;
    if (zip_close(content.get()) != 0)
        return false;
    (void)content.release(); // which closing has given up
    return true;
}

bool HBCZipFile::extractFiles(const QString &archive, const QString &folder)
{
    const Archive content = opened(archive, ZIP_RDONLY);
    QVector<Member> members;
    if (!content || !QFileInfo(folder).isDir() || !listMembers(content.get(), members))
        return false;
    Extraction extraction(content.get(), folder);
    if (!std::all_of(members.begin(), members.end(), [&](const Member &member) { return extraction.unpack(member); }))
        return false;
    extraction.keep();
    return true;
}

bool HBCZipFile::uncompressFile(const QString &archive, const QString &member, const QString &file)
{
    const Archive content = opened(archive, ZIP_RDONLY);
    if (!content)
        return false;
    const zip_int64_t index = zip_name_locate(content.get(), member.toUtf8().constData(), 0);
    Member found;
    if (index < 0 || !describe(content.get(), static_cast<zip_uint64_t>(index), found) || found.isFolder() ||
        found.size > kMaxUnpackedBytes)
        return false;
    QSaveFile target(file);
    return target.open(QIODevice::WriteOnly) && copyContent(content.get(), found, target) && target.flush() &&
           target.commit();
}
