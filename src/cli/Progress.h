#pragma once

#include <QElapsedTimer>
#include <QString>

namespace orvcad {

/** A bar on standard error, on a terminal, from the first second on. It goes when this object does. */
class Progress
{
public:
    /** @param what   of which so many are to be done: "files"
     *  @param total  their number */
    Progress(QString what, int total);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /** One more is done. */
    void step();

    /** Shows no bar from now on, in this process. */
    static void hide();

    /** "[#####     ] 10/20 files", as wide as it should be. */
    static QString bar(const QString &what, int done, int total);

private:
    void draw();

    QString m_what;
    int m_total;
    int m_done = 0;
    bool m_isDrawn = false;
    qint64 m_drawnAt = 0; // ms
    QElapsedTimer m_timer;
};

} // namespace orvcad
