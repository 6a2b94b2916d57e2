#pragma once

#include <QString>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace orvcad {

/** What is wrong with the arguments, in the language of the user. What reads the arguments speaks English alone, so its
 *  sentences are recognised and said again; one that is none of those known stays as it is. */
class UsageFault
{
public:
    /** @param app  that has thrown the error; the first argument that nothing took is told before anything else */
    UsageFault(const CLI::App &app, const CLI::ParseError &error);

    /** "--floor is required". */
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

} // namespace orvcad
