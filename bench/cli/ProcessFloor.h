#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>

namespace bench {

/** A floor of slabs on beams with bars over them, in files: the project that has it all, the one that has the beams alone,
 *  and the payload of the slabs and bars, which is the reply that makes the one of the other. The files are made in other
 *  processes, so that this one stays small: a child's peak of memory is at least what its parent has. */
class ProcessFloor
{
public:
    /** @param drawObjs  roughly so many on the floor */
    explicit ProcessFloor(std::size_t drawObjs);

    QString fullProject() const { return path("full.hbxdb"); }
    QString payload() const { return path("payload.json"); }
    /** A file for whoever measures; there is none at first. */
    QString scratch() const { return path("scratch"); }

    double drawObjs() const { return m_made.drawObjs; }
    double members() const { return m_made.members; } ///< of the payload that become draw objects
    double payloadBytes() const;

    /** Runs orvcad over the full project; the payload goes into a file of its own. @return why it failed, or nothing */
    QString exportSlabs() const;
    /** Puts a project into place that has the beams alone. */
    void emptyWorkProject() const;
    /** Runs orvcad over that with the payload as reply. @return why it failed, or nothing */
    QString applySlabs() const;

    /** Why there is no such floor; empty where there is. */
    QString failure() const { return QString::fromUtf8(m_made.failure); }

private:
    /** What comes out of the process that makes the files. */
    struct Made
    {
        double drawObjs = 0.0;
        double members = 0.0;
        char failure[150] = "the process that makes it did not end by itself";
    };

    QString path(const char *file) const { return m_folder.filePath(QLatin1String(file)); }
    QString make(std::size_t drawObjs, Made &made) const;
    QString orvcad(const QStringList &arguments) const;

    QTemporaryDir m_folder;
    Made m_made;
};

} // namespace bench
