#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

/** Archives made byte by byte, so that they can lie about what they hold. */
class ZipBytes
{
public:
    struct Member
    {
        QByteArray name;
        QByteArray content;
        quint32 mode = 0100644; ///< as Unix has it: type and rights
        qint64 statedSize = -1; ///< that the content is said to unpack to; -1 for the truth
        bool soundCheck = true; ///< whether the checksum is that of the content
        bool encrypted = false; ///< whether it is said to be
    };

    static QByteArray of(const QList<Member> &members)
    {
        QByteArray bytes;
        QByteArray directory;
        for (const Member &member : members)
            append(member, bytes, directory);
        const int start = bytes.size();
        bytes += directory;
        bytes += "PK\5\6" + QByteArray(4, '\0') + le16(members.size()) + le16(members.size()) + le32(directory.size()) +
                 le32(start) + le16(0);
        return bytes;
    }

private:
    static void append(const Member &member, QByteArray &bytes, QByteArray &directory)
    {
        const QByteArray packed = deflated(member.content);
        const QByteArray head = le16(member.encrypted ? 1 : 0) + le16(8) + le32(0) + le32(check(member)) +
                                le32(packed.size()) +
                                le32(member.statedSize < 0 ? member.content.size() : member.statedSize) +
                                le16(member.name.size()) + le16(0);
        directory += QByteArray("PK\1\2") + le16(3 << 8 | 20) + le16(20) + head + le16(0) + le16(0) + le16(0) +
                     le32(qint64(member.mode) << 16) + le32(bytes.size()) + member.name;
        bytes += "PK\3\4" + le16(20) + head + member.name + packed;
    }

    static QByteArray deflated(const QByteArray &content)
    {
        if (content.isEmpty())
            return QByteArray("\3\0", 2);                // one block without anything in it; qCompress makes none
        return qCompress(content).mid(4 + 2).chopped(4); // without sizes and checksum
    }
    static QByteArray le16(int value) { return le32(value).left(2); }
    static QByteArray le32(qint64 value)
    {
        QByteArray bytes(4, '\0');
        qToLittleEndian(static_cast<quint32>(value), bytes.data());
        return bytes;
    }
    static quint32 check(const Member &member)
    {
        quint32 crc = 0xFFFFFFFFU;
        for (const char byte : member.content) {
            crc ^= static_cast<quint8>(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc & 1U) != 0 ? crc >> 1U ^ 0xEDB88320U : crc >> 1U;
        }
        return member.soundCheck ? ~crc : crc;
    }
};
