#pragma once

#include "foundation/Any.h"
#include "foundation/TreeNode.h"

#include <cstddef>
#include <functional>
#include <map>
#include <type_traits>
#include <utility>
#include <vector>

namespace gp {

/** Second layer of the object system: a tree node with a name, named properties and named methods.
 *
 *      object.setProperty("thickness", 120.0);                              // stored
 *      object.setProperty("elevation", [&] { return Any(m_elev); },         // bound to a field
 *                         [&](const Any &value) { m_elev = value.to<double>(); });
 *      double total = object["thickness"].to<double>() + object["elevation"].to<double>();
 *
 *  A bound property with a getter and a setter stores nothing itself. One with a setter alone stores what is set and
 *  gives that. Names that are not there are no failure: reading gives the default, calling a method an empty value.
 *  Exceptions of getters, setters, methods and callbacks pass through; a getter or setter may not remove its property.
 *
 *  @tparam Data   pointer to the class at the end of the chain, which has a constructor (Name, Data parent)
 *  @tparam Name   of objects, properties and methods; ordered by <
 *  @tparam Value  what properties hold; copyable, empty by default
 *
 *  The class stands in a file of another name because cv::Object_AI is called the same. */
template <typename Data, typename Name, typename Value> class Object_AI : public TreeNode<Data, 0>
{
    using Tree = TreeNode<Data, 0>;

public:
    /** What reading a bound property calls. */
    using Getter = std::function<Value()>;
    /** What writing a bound property calls, with what is written. */
    using Setter = std::function<void(Value)>;
    /** A named method: nine arguments, of which those left out are empty values. */
    using Method = std::function<Value(Value, Value, Value, Value, Value, Value, Value, Value, Value)>;
    /** Whether an object is one that is sought; it is never asked about null. */
    using Predicate = std::function<bool(Object_AI *)>;

    /** A property as it reads. */
    struct property_t
    {
        Name name;   ///< by which it is read and written
        Value value; ///< what property() gives
    };

    /** A named property of an object, whether it is there or not: it is written by assignment and read by conversion.
     *  It lives no longer than the object. */
    class PropertyAssistant : public AnySource
    {
    public:
        /** The object is not owned. */
        PropertyAssistant(Object_AI *owner, const Name &name) : m_owner(owner), m_name(name) {}
        PropertyAssistant(const PropertyAssistant &) = default;
        ~PropertyAssistant() = default;

        /** Writes the property, making it if need be. */
        PropertyAssistant &operator=(const Value &value);
        /** Copies the value of the other property. */
        PropertyAssistant &operator=(const PropertyAssistant &other); // NOLINT(bugprone-unhandled-self-assignment)

        /** What the property reads as; an empty value where there is none. */
        operator Value() const { return m_owner->property(m_name); }
        /** The same, converted as the value converts itself. */
        template <typename T> T to() const { return Value(*this).template to<T>(); }
        /** The same, of exactly that type; throws what the value throws for another. */
        template <typename T> T cast() const { return Value(*this).template cast<T>(); }

    private:
        Object_AI *m_owner;
        Name m_name;
    };

    /** @param data    the object that this node is part of
     *  @param parent  appends the new object to its children; the tree owns it then. Null makes a root */
    explicit Object_AI(const Data &data, Object_AI *parent = nullptr) : Object_AI(Name(), data, parent) {}
    /** The same with a name. */
    Object_AI(const Name &name, const Data &data, Object_AI *parent = nullptr);
    /** Copies name and properties, but neither methods, callback, parent nor children. A bound property of the copy is
     *  bound to what the other's is bound to. */
    Object_AI(const Object_AI &other, const Data &data, int);
    /** Takes name, properties, children and the place under the parent, but neither methods nor callback. */
    Object_AI(Object_AI &&other, const Data &data, int);
    /** Calls the callback; properties, methods and children go after it, and last the object leaves its parent. */
    ~Object_AI() override;

    /** Copies name and properties. */
    Object_AI &operator=(const Object_AI &other);
    /** Deletes the present children, takes name, children and place of the other and exchanges the properties. Nothing
     *  happens for an object that stands in this one, or is it. */
    Object_AI &operator=(Object_AI &&other); // NOLINT(*-noexcept-move-*,*-exception-escape): handlers may throw

    /** Empty at first; siblings may have the same. */
    const Name &objectName() const { return m_name; }
    /** No event tells. */
    void setObjectName(const Name &name) { m_name = name; }

    // ---- Properties

    /** Writes a property: calls its setter, and stores the value unless it has a getter too. Makes it if need be. */
    void setProperty(const Name &name, const Value &value);
    /** Binds a property, making it if need be. An empty function unbinds that side; a stored value stays. */
    void setProperty(const Name &name, const Getter &getter, const Setter &setter);
    /** What the getter gives, else the stored value, else the default. */
    Value property(const Name &name, const Value &defaultValue = Value()) const;
    /** The same from this object or the nearest one above it that has the property. */
    Value inherited_property(const Name &name, const Value &defaultValue = Value()) const;
    /** Whether it is there on this object, stored or bound. */
    bool hasProperty(const Name &name) const { return boundProperties().count(name) != 0; }
    /** Takes away value and binding; a field that it was bound to stays as it is. */
    void deleteProperty(const Name &name) { boundProperties().erase(name); }
    /** In the order of names, as properties() is. */
    std::vector<Name> propertyNames() const;
    /** Each as it reads, so every getter is called. */
    std::vector<property_t> properties() const;

    /** The property, to be read or written; naming one makes none. */
    PropertyAssistant operator[](const Name &name) { return {this, name}; }
    /** Not to be assigned to; copies of it should be const too. */
    const PropertyAssistant operator[](const Name &name) const; // NOLINT(readability-const-return-type)
    /** The child at a position; twice, as a position 0 would be a name else. */
    Data operator[](qint64 position) { return this->child(position); }
    /** The same. */
    Data operator[](qint64 position) const { return this->child(position); }

    // ---- Methods

    /** Takes the place of a method of that name; an empty one gives empty values. */
    void setMethod(const Name &name, const Method &method) { m_methods[name] = method; }
    /** Calls a copy of the method, so that it may replace itself. Arguments left out are empty values. */
    Value invokeMethod(const Name &name, const Value &a1 = Value(), const Value &a2 = Value(),
                       const Value &a3 = Value(), const Value &a4 = Value(), const Value &a5 = Value(),
                       const Value &a6 = Value(), const Value &a7 = Value(), const Value &a8 = Value(),
                       const Value &a9 = Value()) const;

    /** Called first of all when the object dies; it may not throw then. What derives from this class is gone by then. */
    void setCallbackBeforeDestroyed(const std::function<void()> &callback)
    {
        bindNow(); // the callback may ask what properties there are
        m_beforeDestroyed = callback;
    }

    // ---- Searches, in the order of the tree's; each gives the data of what it finds, null or nothing otherwise.

    using Tree::findChild;
    /** First object of that name. */
    Data findChild(const Name &name, FindChildOption option = FindDirectChildren) const;
    /** First object that the predicate holds for. */
    Data findChild_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    /** All objects of that name. */
    std::vector<Data> findChildren(const Name &name, FindChildOption option = FindDirectChildren) const;
    /** All objects that the predicate holds for. */
    std::vector<Data> findChildren_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    /** The child of that name, or a new one. Null only for an object without data. */
    Data createIfNotExists(const Name &name, FindChildOption option = FindDirectChildren);

protected:
    /** Binds all properties of the object that it is called with. */
    using Binder = void (*)(Object_AI &);

    /** Leaves the binding of properties to a function that is called at the first question for any of them, so that an
     *  object whose properties nobody asks for pays nothing. A second one takes the place of the first. */
    void bindLater(Binder binder) { m_binder = binder; }

private:
    struct Entry
    {
        Getter getter;
        Setter setter;
        Value value;

        Value read() const { return getter ? getter() : value; }
    };

    using Entries = std::map<Name, Entry>;

    void bindNow() const
    {
        if (m_binder)
            std::exchange(m_binder, nullptr)(const_cast<Object_AI &>(*this)); // what it changes is mutable
    }
    /** The properties, bound: nothing else looks at m_properties. */
    Entries &boundProperties() const
    {
        bindNow();
        return m_properties;
    }
    static typename Tree::Predicate onNodes(const Predicate &predicate);
    static Predicate isNamed(const Name &name);

    Name m_name;
    mutable Entries m_properties;
    mutable Binder m_binder = nullptr;
    std::map<Name, Method> m_methods;
    std::function<void()> m_beforeDestroyed;
};

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
