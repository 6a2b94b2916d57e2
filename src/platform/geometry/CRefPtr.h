#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace vks {

/** Holder of a CRefObject: the object lives as long as one holder does. Null is allowed.
 *  Turns into a plain pointer by itself, which then is only valid while a holder exists. */
template <typename T> class CRefPtr
{
public:
    CRefPtr() noexcept = default;
    /** Holds nothing. */
    CRefPtr(std::nullptr_t) noexcept {}
    /** Holds an object, held by others or not. */
    CRefPtr(T *object) noexcept : m_object(object) { hold(); }
    /** One holder more. */
    CRefPtr(const CRefPtr &other) noexcept : m_object(other.m_object) { hold(); }
    /** Takes the hold over; the other one holds nothing then. */
    CRefPtr(CRefPtr &&other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    /** Holds what another type of holder holds, where its pointer converts. */
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U *, T *>>>
    CRefPtr(const CRefPtr<U> &other) noexcept : m_object(other.get())
    {
        hold();
    }
    ~CRefPtr() { letGo(); }

    /** Lets go of what it held. */
    CRefPtr &operator=(CRefPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /** Null when it holds nothing. */
    T *get() const noexcept { return m_object; }
    /** Only where there is an object. */
    T *operator->() const noexcept { return m_object; }
    /** Only where there is an object. */
    T &operator*() const noexcept { return *m_object; }
    /** As get(). */
    operator T *() const noexcept { return m_object; }

private:
    void hold() noexcept
    {
        if (m_object)
            m_object->AddRef();
    }
    void letGo() noexcept
    {
        if (m_object)
            m_object->Release();
    }

    T *m_object = nullptr;
};

/** A copy of a curve, loop or polygon; null for null. */
template <typename Geometry> auto cloneOrNull(const Geometry *geometry)
{
    using Copy = decltype(geometry->Clone());
    return geometry ? geometry->Clone() : Copy();
}
/** The same of what a holder holds. */
template <typename Geometry> auto cloneOrNull(const CRefPtr<Geometry> &geometry) { return cloneOrNull(geometry.get()); }

} // namespace vks
