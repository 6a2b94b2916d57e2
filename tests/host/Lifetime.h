#pragma once

/** Sets a flag when it dies; a member of what is to be destroyed whole. */
class Lifetime
{
public:
    explicit Lifetime(bool &isOver) : m_isOver(isOver) { m_isOver = false; }
    ~Lifetime() { m_isOver = true; }
    Lifetime(const Lifetime &) = delete;
    Lifetime &operator=(const Lifetime &) = delete;

private:
    bool &m_isOver;
};
