#pragma once
// Tells whether an object still lives after a call that may have run the host's code. Internal to the module.
//
//     LifeWatch const life(m_lifeSign);     // m_lifeSign: a member of the object
//     ::MoveWindow(...);                    // a handler of the host's may delete the object
//     if (life.Over())
//         return;
//
// For one thread.

#include <memory>

/// Stands for the life of the object that has it. A copy of the object is an object of its own.
class LifeSign
{
public:
    LifeSign() = default;
    LifeSign(LifeSign const &) {}
    LifeSign & operator=(LifeSign const &) { return *this; }

private:
    friend class LifeWatch;

    std::shared_ptr<void const> m_token = std::make_shared<char>();
};

class LifeWatch
{
public:
    explicit LifeWatch(LifeSign const & sign) : m_token(sign.m_token) {}
    LifeWatch(LifeWatch const &) = delete;
    LifeWatch & operator=(LifeWatch const &) = delete;

    /// The object that was watched is gone.
    bool Over() const { return m_token.expired(); }

private:
    std::weak_ptr<void const> m_token;
};
