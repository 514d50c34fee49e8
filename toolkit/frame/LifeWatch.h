#pragma once
// Tells whether an object still lives after a call that may have run the host's code. Internal to the module.
//
//     LifeWatch const life(m_lifeSign);     // m_lifeSign: a member of the object
//     ::MoveWindow(...);                    // a handler of the host's may delete the object
//     if (life.Over())
//         return;
//
// For one thread. A watch is a local variable.

class LifeSign;

class LifeWatch
{
public:
    explicit LifeWatch(LifeSign & sign);
    ~LifeWatch();
    LifeWatch(LifeWatch const &) = delete;
    LifeWatch & operator=(LifeWatch const &) = delete;

    /// The object that was watched is gone.
    bool Over() const { return m_sign == nullptr; }

private:
    friend class LifeSign;

    LifeSign * m_sign;
    LifeWatch * m_next;
};

/// Stands for the life of the object that has it. A copy of the object is an object of its own.
class LifeSign
{
public:
    LifeSign() = default;
    LifeSign(LifeSign const &) {}
    LifeSign & operator=(LifeSign const &) { return *this; }
    ~LifeSign()
    {
        for (LifeWatch * watch = m_first; watch != nullptr; watch = watch->m_next)
            watch->m_sign = nullptr;
    }

private:
    friend class LifeWatch;

    LifeWatch * m_first = nullptr;
};

inline LifeWatch::LifeWatch(LifeSign & sign) : m_sign(&sign), m_next(sign.m_first)
{
    sign.m_first = this;
}

// Local variables end in the opposite order, so this watch is the first.
inline LifeWatch::~LifeWatch()
{
    if (m_sign != nullptr)
        m_sign->m_first = m_next;
}
