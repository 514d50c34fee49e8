#pragma once
// Tells whether an object still lives after a call that may have run the host's code. Internal to the module.
//
//     LifeWatch const life(m_lifeSign);     // m_lifeSign: a member of the object
//     ::MoveWindow(...);                    // a handler of the host's may delete the object
//     if (life.Over())
//         return;
//
// For one thread.

/// Stands for the life of the object that has it. A copy of the object is an object of its own.
class LifeSign
{
public:
    LifeSign() = default;
    LifeSign(LifeSign const &) {}
    LifeSign & operator=(LifeSign const &) { return *this; }
    ~LifeSign()
    {
        m_token->over = true;
        m_token->Release();
    }

private:
    friend class LifeWatch;

    /// Lasts as long as anybody watches. A watch is taken for every cell that is written, which is too often for the
    /// counting of a shared pointer.
    struct Token
    {
        void Release()
        {
            if (--holders == 0)
                delete this;
        }
        unsigned int holders = 1;
        bool over = false;
    };
    Token * m_token = new Token;
};

class LifeWatch
{
public:
    explicit LifeWatch(LifeSign const & sign) : m_token(sign.m_token) { ++m_token->holders; }
    ~LifeWatch() { m_token->Release(); }
    LifeWatch(LifeWatch const &) = delete;
    LifeWatch & operator=(LifeWatch const &) = delete;

    /// The object that was watched is gone.
    bool Over() const { return m_token->over; }

private:
    LifeSign::Token * m_token;
};
