#pragma once

#include "ORVCADModelDataExport.h"

#include <QtGlobal>

#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

/** Base of classes that convert to an Any by themselves, so that an Any made of one holds what it stands for. */
struct AnySource
{};

/** A value of any copyable type, or nothing. */
class ORVCADMODELDATA_EXPORT Any
{
public:
    /** Holds nothing; type() is that of void. */
    Any() = default;
    /** Holds a copy. A text literal is held as const char *, so the text itself has to live on. */
    template <typename T, typename Held = std::decay_t<T>,
              typename = std::enable_if_t<!std::is_same_v<Held, Any> && !std::is_base_of_v<AnySource, Held>>>
    Any(T &&value) // NOLINT(bugprone-forwarding-reference-overload): the condition leaves out Any itself
        : m_held(new Derived<Held>(std::forward<T>(value))), m_type(&typeid(Held))
    {}
    /** Copies the held value. */
    Any(const Any &other);
    /** Leaves the other holding nothing. */
    Any(Any &&other) noexcept;
    /** The value that was held dies. */
    Any &operator=(Any other) noexcept;
    ~Any();

    /** True of what was moved from; a null pointer is a value. */
    bool isEmpty() const { return !m_held; }
    /** Of the held value as std::decay makes it; that of void where nothing is held. */
    const std::type_info &type() const { return *m_type; }
    /** Whether the held type is exactly T: neither a base nor a type that converts counts. */
    template <typename T> bool holds() const { return *m_type == typeid(T); }

    /** The held value, for which the type has to be exactly T. Otherwise writes "can not cast <T> from <held type>" to
     *  standard output, types by their std::type_info names, and throws a std::bad_cast that says "bad cast". */
    template <typename T> T &cast();
    /** The same, to be read. */
    template <typename T> const T &cast() const;

    /** The held value converted; a T itself always, else:
     *
     *  | held                 | double                | an enumeration |
     *  | nothing              | 0.0                   | 0              |
     *  | int, unsigned int    | the number            | the number     |
     *  | float, long          | the number            | -1             |
     *  | double               | itself                | -1             |
     *  | qint64, quint64      | the number            | the number     |
     *  | std::string, char *  | its start as a number | -1             |
     *  | char                 | the number            | the number     |
     *  | bool                 | the number            | -1             |
     *  | nullptr              | 0.0                   | -1             |
     *  | other                | text() as a number    | -1             |
     *
     *  Text without a number is 0.0. A number that the enumeration's integer type cannot hold is 0. An enumeration
     *  should have a fixed underlying type, since any number may come. Every other T, QString among them, is T()
     *  unless it is held itself: a number never becomes a QString. */
    template <typename T> T to() const;

    /** Decimal form of a number ("%f" for float and double, of the code for char, 0 and 1 for bool), a std::string or
     *  const char * itself, and nothing for every other type, QString among them. */
    std::string text() const;

    /** What holds the value. */
    class ORVCADMODELDATA_EXPORT Base
    {
    public:
        virtual ~Base();
        /** A copy made with new, which belongs to the caller. */
        virtual Base *clone() const = 0;
        /** As Any::text gives it. */
        virtual std::string text() const = 0;

    protected:
        /** "%f", whatever the locale. */
        static std::string textOfDouble(double number);
    };
    template <typename T> class Derived;

private:
    [[noreturn]] void refuseCast(const std::type_info &wanted) const;
    template <typename T> const T &value() const { return static_cast<const Derived<T> *>(m_held.get())->held; }
    template <typename Number, typename... Helds> bool readNumber(Number &number) const;
    template <typename E> E toEnumeration() const;
    double toDouble() const;

    std::unique_ptr<Base> m_held;
    const std::type_info *m_type = &typeid(void);
};

/** Holds a value of one type, which is a decayed one. */
template <typename T> class Any::Derived : public Any::Base
{
public:
    /** Copies the value. */
    explicit Derived(const T &value) : held(value) {}
    /** Takes the value. */
    explicit Derived(T &&value) : held(std::move(value)) {}

    Base *clone() const override { return new Derived(held); }
    std::string text() const override
    {
        if constexpr (std::is_floating_point_v<T>)
            return textOfDouble(static_cast<double>(held));
        else if constexpr (std::is_arithmetic_v<T>)
            return std::to_string(held);
        else if constexpr (std::is_same_v<T, std::string>)
            return held;
        else if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, char *>)
            return held ? std::string(held) : std::string();
        else
            return {};
    }

    T held; ///< what Any::cast refers to
};

template <typename T> const T &Any::cast() const
{
    if (!holds<T>())
        refuseCast(typeid(T));
    return value<T>();
}

template <typename T> T &Any::cast() { return const_cast<T &>(std::as_const(*this).cast<T>()); }

template <typename T> T Any::to() const
{
    if (holds<T>())
        return value<T>();
    if constexpr (std::is_same_v<T, double>)
        return toDouble();
    else if constexpr (std::is_enum_v<T>)
        return toEnumeration<T>();
    else
        return T();
}

/** Reads the held value if it is of one of the types told; one beyond an integer type is 0. */
template <typename Number, typename... Helds> bool Any::readNumber(Number &number) const
{
    const auto read = [&number](auto held) {
        number = static_cast<Number>(held); // NOLINT(bugprone-signed-char-misuse): the number of a char is meant
        if constexpr (std::is_integral_v<Number>) {
            using Held = decltype(held);
            if (static_cast<Held>(number) != held || (number < Number()) != (held < Held()))
                number = Number();
        }
        return true;
    };
    return ((holds<Helds>() && read(value<Helds>())) || ...);
}

template <typename E> E Any::toEnumeration() const
{
    using Number = std::underlying_type_t<E>;
    Number number = Number();
    // Meant: long, float, double and bool are not read.
    if (!readNumber<Number, int, unsigned int, qint64, quint64, char>(number) && !isEmpty())
        number = static_cast<Number>(-1);
    return static_cast<E>(number);
}
