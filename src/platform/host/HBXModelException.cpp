#include "platform/host/HBXModelException.h"

HBXModelException::HBXModelException(const QString &reason) : std::runtime_error(reason.toStdString()) {}

HBXModelException::~HBXModelException() = default;

QString HBXModelException::reason() const { return QString::fromUtf8(what()); }
