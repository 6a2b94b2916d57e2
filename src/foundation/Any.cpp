#include "foundation/Any.h"

#include <cstddef>
#include <iomanip>
#include <iostream>
#include <locale>
#include <sstream>

namespace {

/** What a cast to another type than the held one throws: the same text with every standard library. */
class BadAnyCast : public std::bad_cast
{
public:
    const char *what() const noexcept override { return "bad cast"; }
};

/** The number that a text starts with, behind white space; 0.0 where there is none. */
double numberAtStart(const std::string &text)
{
    std::stringstream stream(text);
    stream.imbue(std::locale::classic());
    double number = 0.0;
    stream >> number;
    return number;
}

} // namespace

Any::Base::~Base() = default;

Any::Any(const Any &other) : m_held(other.m_held ? other.m_held->clone() : nullptr), m_type(other.m_type) {}

Any::Any(Any &&other) noexcept : m_held(std::move(other.m_held)), m_type(std::exchange(other.m_type, &typeid(void))) {}

Any &Any::operator=(Any other) noexcept
{
    m_held.swap(other.m_held);
    std::swap(m_type, other.m_type);
    return *this;
}

Any::~Any() = default;

std::string Any::text() const { return m_held ? m_held->text() : std::string(); }

void Any::refuseCast(const std::type_info &wanted) const
{
    std::cout << "can not cast " << wanted.name() << " from " << m_type->name() << std::endl;
    throw BadAnyCast();
}

double Any::toDouble() const
{
    double number = 0.0;
    if (readNumber<double, int, unsigned int, float, long, qint64, quint64, char, bool>(number) || isEmpty())
        return number;
    return holds<std::nullptr_t>() ? 0.0 : numberAtStart(text());
}

std::string Any::Base::textOfDouble(double number)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(6) << number;
    return stream.str();
}
