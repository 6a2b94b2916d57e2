#pragma once

#include "platform/host/IHBXModel.h"

#include <string>
#include <utility>

/** Bracket around changes of a model, closed on every way out. What the host throws when it opens the bracket passes on, and
 *  there is no bracket then; what it throws when it closes it ends here, since the way out may be another exception. */
class HBXBatch
{
public:
    /** Opens the bracket of the key; the model lives longer. */
    HBXBatch(IHBXModel &model, std::string key) : m_model(model), m_key(std::move(key))
    {
        m_model.beginBatch(m_key, true);
    }
    ~HBXBatch()
    {
        try {
            m_model.endBatch(m_key);
        } catch (...) {
            // The host was told; what was written stands.
        }
    }
    HBXBatch(const HBXBatch &) = delete;
    HBXBatch &operator=(const HBXBatch &) = delete;

private:
    IHBXModel &m_model;
    std::string m_key;
};
