// Draws the figures of relations into a directory: DrawRelations docs/pictures

#include "docs/RelationFigures.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>

namespace {

bool write(const docs::RelationFigure &figure, const QString &directory)
{
    const QByteArray picture = docs::drawn(figure);
    QFile file(QDir(directory).filePath(figure.name + QStringLiteral(".svg")));
    return file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size();
}

} // namespace

int main(int count, char *arguments[])
{
    if (count != 2) {
        std::fputs("usage: DrawRelations DIRECTORY\n", stderr);
        return 1;
    }
    try {
        for (const docs::RelationFigure &figure : docs::relationFigures())
            if (!write(figure, QString::fromLocal8Bit(arguments[1])))
                return 2;
    } catch (const std::exception &refusal) {
        std::fprintf(stderr, "%s\n", refusal.what());
        return 2;
    }
    return 0;
}
