#pragma once

#include <QList>

/** Handle for the results of an identify run, filled by the calling module alone. Its entries belong to whoever made them;
 *  a copy shares the list until one of the two changes. */
class BeamIdentifyResult
{
private:
    QList<void *> m_entries;
};
