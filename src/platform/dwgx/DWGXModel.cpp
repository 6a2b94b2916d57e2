#include "platform/dwgx/DWGXModel.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace dwgx {
namespace {

template <typename Layers> auto layerOfName(Layers &layers, const QString &name)
{
    const auto found =
        std::find_if(layers.begin(), layers.end(), [&](const auto &layer) { return layer.name == name; });
    return found == layers.end() ? nullptr : &*found;
}

template <typename Count> int sumOverLayers(const std::vector<DWGXLayer> &layers, Count count)
{
    return std::accumulate(layers.begin(), layers.end(), 0,
                           [&](int sum, const DWGXLayer &layer) { return sum + static_cast<int>(count(layer)); });
}

} // namespace

DWGXModel *DWGXModel::createObject() { return new DWGXModel; }

const DWGXLayer *DWGXModel::layer(const QString &name) const { return layerOfName(m_layers, name); }

DWGXLayer *DWGXModel::findLayer(const QString &name) { return layerOfName(m_layers, name); }

int DWGXModel::lineCount() const
{
    return sumOverLayers(m_layers, [](const DWGXLayer &layer) { return layer.lines.size(); });
}

int DWGXModel::textCount() const
{
    return sumOverLayers(m_layers, [](const DWGXLayer &layer) { return layer.texts.size(); });
}

vks::CBox2<double> DWGXModel::box() const
{
    vks::CBox2<double> box;
    for (const DWGXLayer &layer : m_layers) {
        for (const DWGXLine &line : layer.lines)
            box.Add(line.curve->Box());
        for (const DWGXText &text : layer.texts)
            for (const auto &corner : text.corners())
                box.Add(corner);
    }
    return box;
}

bool DWGXModel::addLayer(const QString &name, int color)
{
    if (name.isEmpty() || color < 1 || color >= kColorByLayer || findLayer(name))
        return false;
    m_layers.push_back({name, color, {}, {}});
    return true;
}

template <typename Entity>
bool DWGXModel::add(const QString &layerName, Entity entity, std::vector<Entity> DWGXLayer::*entities)
{
    DWGXLayer *target = findLayer(layerName);
    if (!target || !entity.isSound() || !takeId(entity))
        return false;
    (target->*entities).push_back(std::move(entity));
    return true;
}

bool DWGXModel::addLine(const QString &layerName, DWGXLine line)
{
    return add(layerName, std::move(line), &DWGXLayer::lines);
}

bool DWGXModel::addText(const QString &layerName, DWGXText text)
{
    return add(layerName, std::move(text), &DWGXLayer::texts);
}

bool DWGXModel::takeId(DWGXEntity &entity)
{
    if (entity.id == 0) {
        if (m_lastId == std::numeric_limits<int>::max())
            return false;
        entity.id = m_lastId + 1;
    }
    if (!m_ids.insert(entity.id).second)
        return false;
    m_lastId = std::max(m_lastId, entity.id);
    return true;
}

void DWGXModel::swapContent(DWGXModel &other)
{
    std::swap(m_title, other.m_title);
    std::swap(m_remark, other.m_remark);
    std::swap(m_viewer, other.m_viewer);
    std::swap(m_layers, other.m_layers);
    std::swap(m_ids, other.m_ids);
    std::swap(m_lastId, other.m_lastId);
}

} // namespace dwgx
