#pragma once

#include "JsonTexts.h"

#include <QDir>
#include <QTemporaryDir>

/** A directory that is the test's own. */
class TestFiles : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return QDir(m_directory.path()).filePath(name); }
    /** Path of a file with that content. */
    QString fileOf(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        file.write(content);
        return path(name);
    }

private:
    QTemporaryDir m_directory;
};
