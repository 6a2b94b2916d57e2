#pragma once

#include <QByteArray>

namespace fuzz {

/** While it lives, leaks are not looked for where a text is one that Qt's JSON reader leaks on: it forgets the array or
 *  object under a member that stands once more in the same object. */
class QtJsonLeaks
{
public:
    explicit QtJsonLeaks(const QByteArray &json);
    ~QtJsonLeaks();
    QtJsonLeaks(const QtJsonLeaks &) = delete;
    QtJsonLeaks &operator=(const QtJsonLeaks &) = delete;

private:
    bool m_isOff;
};

} // namespace fuzz
