#include "encoding/ORVCADFileSerialization.h"

ORVCADFileSerialization::ORVCADFileSerialization(const QString &text) : m_content(text) {}

ORVCADFileSerialization::~ORVCADFileSerialization() = default;

void ORVCADFileSerialization::save(const QString &text) { m_content = text; }
