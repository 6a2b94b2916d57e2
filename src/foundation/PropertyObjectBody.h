#pragma once

#include "foundation/PropertyObject.h"

namespace gp {

template <typename Data, typename Name, typename Value>
Object_AI<Data, Name, Value>::Object_AI(const Name &name, const Data &data, Object_AI *parent)
    : Tree(data), m_name(name)
{
    if (parent)
        parent->appendChild(this);
}

template <typename Data, typename Name, typename Value>
Object_AI<Data, Name, Value>::Object_AI(const Object_AI &other, const Data &data, int)
    : Tree(data), m_name(other.m_name), m_properties(other.boundProperties())
{}

template <typename Data, typename Name, typename Value>
Object_AI<Data, Name, Value>::Object_AI(Object_AI &&other, const Data &data, int)
    : Tree(data), m_name(std::move(other.m_name)), m_properties(std::move(other.boundProperties()))
{
    other.m_properties.clear();
    Tree::move_ralations(&other, this);
}

template <typename Data, typename Name, typename Value> Object_AI<Data, Name, Value>::~Object_AI()
{
    m_binder = nullptr; // what it would bind is gone
    if (m_beforeDestroyed)
        m_beforeDestroyed();
}

template <typename Data, typename Name, typename Value>
auto Object_AI<Data, Name, Value>::operator=(const Object_AI &other) -> Object_AI &
{
    if (this != &other) {
        m_name = other.m_name;
        boundProperties() = other.boundProperties();
    }
    return *this;
}

template <typename Data, typename Name, typename Value>
// NOLINTNEXTLINE(*-noexcept-move-*,*-exception-escape): handlers of events may throw
auto Object_AI<Data, Name, Value>::operator=(Object_AI &&other) -> Object_AI &
{
    for (const Tree *above = &other; above; above = above->parentNode())
        if (above == this)
            return *this;
    this->clearChildNodes();
    Tree::move_ralations(&other, this);
    m_name = std::move(other.m_name);
    boundProperties().swap(other.boundProperties());
    return *this;
}

// ---- Properties

template <typename Data, typename Name, typename Value>
void Object_AI<Data, Name, Value>::setProperty(const Name &name, const Value &value)
{
    Entries &entries = boundProperties();
    const auto found = entries.find(name);
    if (found == entries.end()) {
        entries.emplace(name, Entry{{}, {}, value});
        return;
    }
    Entry &entry = found->second;
    if (entry.setter)
        entry.setter(value);
    if (!entry.setter || !entry.getter) // meant: a setter alone does not keep the value from being stored
        entry.value = value;
}

template <typename Data, typename Name, typename Value>
void Object_AI<Data, Name, Value>::setProperty(const Name &name, const Getter &getter, const Setter &setter)
{
    Entry &entry = boundProperties()[name];
    entry.getter = getter;
    entry.setter = setter;
}

template <typename Data, typename Name, typename Value>
Value Object_AI<Data, Name, Value>::property(const Name &name, const Value &defaultValue) const
{
    const Entries &entries = boundProperties();
    const auto found = entries.find(name);
    return found == entries.end() ? defaultValue : found->second.read();
}

template <typename Data, typename Name, typename Value>
Value Object_AI<Data, Name, Value>::inherited_property(const Name &name, const Value &defaultValue) const
{
    const Object_AI *object = this;
    while (true) {
        const Entries &entries = object->boundProperties();
        const auto found = entries.find(name);
        if (found != entries.end())
            return found->second.read();
        if (!object->parent())
            return defaultValue;
        object = static_cast<const Object_AI *>(object->parentNode());
    }
}

template <typename Data, typename Name, typename Value>
std::vector<Name> Object_AI<Data, Name, Value>::propertyNames() const
{
    std::vector<Name> names;
    const Entries &entries = boundProperties();
    names.reserve(entries.size());
    for (const auto &[name, entry] : entries)
        names.push_back(name);
    return names;
}

template <typename Data, typename Name, typename Value>
auto Object_AI<Data, Name, Value>::properties() const -> std::vector<property_t>
{
    std::vector<property_t> list;
    const Entries &entries = boundProperties();
    list.reserve(entries.size());
    for (const auto &[name, entry] : entries)
        list.push_back({name, entry.read()});
    return list;
}

template <typename Data, typename Name, typename Value>
// NOLINTNEXTLINE(readability-const-return-type): a const proxy cannot be assigned to
auto Object_AI<Data, Name, Value>::operator[](const Name &name) const -> const PropertyAssistant
{
    return {const_cast<Object_AI *>(this), name}; // a const proxy only reads
}

template <typename Data, typename Name, typename Value>
auto Object_AI<Data, Name, Value>::PropertyAssistant::operator=(const Value &value) -> PropertyAssistant &
{
    m_owner->setProperty(m_name, value);
    return *this;
}

template <typename Data, typename Name, typename Value>
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a property may be given its own value
auto Object_AI<Data, Name, Value>::PropertyAssistant::operator=(const PropertyAssistant &other) -> PropertyAssistant &
{
    m_owner->setProperty(m_name, other);
    return *this;
}

// ---- Methods

template <typename Data, typename Name, typename Value>
Value Object_AI<Data, Name, Value>::invokeMethod(const Name &name, const Value &a1, const Value &a2, const Value &a3,
                                                 const Value &a4, const Value &a5, const Value &a6, const Value &a7,
                                                 const Value &a8, const Value &a9) const
{
    const auto found = m_methods.find(name);
    const Method method = found == m_methods.end() ? Method() : found->second;
    return method ? method(a1, a2, a3, a4, a5, a6, a7, a8, a9) : Value();
}

// ---- Searches

template <typename Data, typename Name, typename Value>
auto Object_AI<Data, Name, Value>::onNodes(const Predicate &predicate) -> typename Tree::Predicate
{
    return [&predicate](typename Tree::ChildNode *node) { return predicate(static_cast<Object_AI *>(node)); };
}

template <typename Data, typename Name, typename Value>
auto Object_AI<Data, Name, Value>::isNamed(const Name &name) -> Predicate
{
    return [&name](const Object_AI *object) { return object->m_name == name; };
}

template <typename Data, typename Name, typename Value>
Data Object_AI<Data, Name, Value>::findChild_if(const Predicate &predicate, FindChildOption option) const
{
    return Tree::findChild_if(onNodes(predicate), option);
}

template <typename Data, typename Name, typename Value>
std::vector<Data> Object_AI<Data, Name, Value>::findChildren_if(const Predicate &predicate,
                                                                FindChildOption option) const
{
    return Tree::findChildren_if(onNodes(predicate), option);
}

template <typename Data, typename Name, typename Value>
Data Object_AI<Data, Name, Value>::findChild(const Name &name, FindChildOption option) const
{
    return findChild_if(isNamed(name), option);
}

template <typename Data, typename Name, typename Value>
std::vector<Data> Object_AI<Data, Name, Value>::findChildren(const Name &name, FindChildOption option) const
{
    return findChildren_if(isNamed(name), option);
}

template <typename Data, typename Name, typename Value>
Data Object_AI<Data, Name, Value>::createIfNotExists(const Name &name, FindChildOption option)
{
    const Data found = findChild(name, option);
    if (found || !this->data())
        return found;
    return new std::remove_pointer_t<Data>(name, this->data());
}

} // namespace gp
