#pragma once

#include "suite/Road.h"

#include <memory>
#include <vector>

namespace bench {

/** As many models of one size as a load has documents, and the works of making and ending them. */
template <typename Model> class BuiltModels : public std::enable_shared_from_this<BuiltModels<Model>>
{
public:
    using Build = Model (*)(std::size_t size);

    BuiltModels(const Load &load, Build buildOne) : m_load(load), m_buildOne(buildOne) {}

    void build()
    {
        m_models.reserve(m_load.documents);
        for (std::size_t i = 0; i < m_load.documents; ++i)
            m_models.push_back(m_buildOne(m_load.size));
    }
    void destroy() { m_models.clear(); }

    Work building()
    {
        const auto self = this->shared_from_this();
        return {[self] { self->destroy(); }, [self] { self->build(); }};
    }
    Work destroying()
    {
        const auto self = this->shared_from_this();
        return {[self] { self->destroy(), self->build(); }, [self] { self->destroy(); }};
    }
    /** Calls an operation with each model; they are built by then. */
    template <typename Use> Work each(Use use)
    {
        const auto self = this->shared_from_this();
        return [self, use] {
            for (const Model &model : self->m_models)
                use(model);
        };
    }

private:
    Load m_load;
    Build m_buildOne;
    std::vector<Model> m_models;
};

/** @param build  makes a model of a size */
template <typename Model> auto modelsOf(const Load &load, Model (*build)(std::size_t size))
{
    return std::make_shared<BuiltModels<Model>>(load, build);
}

} // namespace bench
