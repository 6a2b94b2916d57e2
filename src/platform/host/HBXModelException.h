#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

#include <stdexcept>

/** What the host throws when a write cannot be done: a name that is taken, a value of the wrong kind. */
class ORVCADPLATFORM_EXPORT HBXModelException : public std::runtime_error
{
public:
    /** The reason is what a user is told. */
    explicit HBXModelException(const QString &reason);
    ~HBXModelException() override;

    /** The same text. */
    QString reason() const;
};
