#pragma once

#include "platform/host/IHBXModel.h"

#include <string>
#include <utility>

/** Bracket around changes of a model, closed on every way out. */
class HBXBatch
{
public:
    HBXBatch(IHBXModel &model, std::string key) : m_model(model), m_key(std::move(key))
    {
        m_model.beginBatch(m_key, true);
    }
    ~HBXBatch() { m_model.endBatch(m_key); }
    HBXBatch(const HBXBatch &) = delete;
    HBXBatch &operator=(const HBXBatch &) = delete;

private:
    IHBXModel &m_model;
    std::string m_key;
};
