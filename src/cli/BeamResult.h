#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** What a result document of beam recognition holds. */
struct BeamResult
{
    struct Label
    {
        QString name;
        int type = 0;
        QString section; ///< as the document tells it
        QString spans;   ///< likewise
        int runs = 0;
        int segments = 0;
        // Seats:
        int drawObjects = 0; ///< named by a draw object of the host: resolved
        int found = 0;       ///< named by a segment of this document, to be made first
        int lost = 0;        ///< named by neither

        int open() const { return found + lost; }
    };

    std::vector<Label> labels;
    QStringList
        leftOut; ///< places, with the reason, of labels that are no records and of values that are read as others

    QString table() const;
    QJsonObject toJson() const;
};

/** Reads a result document; throws CommandFailure with file, place and reason when the file is none. */
BeamResult readBeamResult(const QString &path);

} // namespace orvcad
