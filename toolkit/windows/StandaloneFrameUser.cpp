#include "windows/StandaloneFrameUser.h"

#include "windows/StandaloneFrameWnd.h"

namespace
{
/// A user whose frame is being made. The host's code runs meanwhile and may end the user.
class Creation
{
public:
    explicit Creation(CStandaloneFrameUser const * user) : m_user(user), m_outer(s_innermost) { s_innermost = this; }
    ~Creation() { s_innermost = m_outer; }
    Creation(Creation const &) = delete;
    Creation & operator=(Creation const &) = delete;

    bool UserLives() const { return m_user != nullptr; }
    static void UserEnds(CStandaloneFrameUser const * user)
    {
        for (Creation * creation = s_innermost; creation != nullptr; creation = creation->m_outer)
        {
            if (creation->m_user == user)
                creation->m_user = nullptr;
        }
    }

private:
    static Creation * s_innermost;

    CStandaloneFrameUser const * m_user;
    Creation * m_outer;
};

Creation * Creation::s_innermost = nullptr;

constexpr unsigned long frame_style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW;
static_assert(frame_style == 0x50CF0000);
} // namespace

CStandaloneFrameUser::CStandaloneFrameUser() : m_frameLebt(false) {}

CStandaloneFrameUser::CStandaloneFrameUser(CStandaloneFrameUser const & other) = default;

CStandaloneFrameUser & CStandaloneFrameUser::operator=(CStandaloneFrameUser const & other) = default;

CStandaloneFrameUser::~CStandaloneFrameUser()
{
    Creation::UserEnds(this);
}

void CStandaloneFrameUser::BeiFrameAbleben()
{
    m_frameLebt = false;
}

void CStandaloneFrameUser::MenueKommando(int, int) {}

void CStandaloneFrameUser::FrameEreignis(int, unsigned long, void const *, wchar_t const *) {}

void CStandaloneFrameUser::MausLDoppelKlick(unsigned int, CPoint, int) {}

void CStandaloneFrameUser::MausRDoppelKlick(unsigned int, CPoint, int) {}

bool CStandaloneFrameUser::FrameLebt() const
{
    return m_frameLebt;
}

CStandaloneFrameWnd * CStandaloneFrameUser::FrameErzeugen(wchar_t const * title, CRuntimeClass * viewClass)
{
    Creation const creation(this);
    auto * const frame = new CStandaloneFrameWnd;
    frame->BitteUmNachricht(this);
    if (frame->Erzeugen(title, viewClass, frame_style))
        return frame;
    // The frame isn't released here: it goes with its window, if it has one.
    if (creation.UserLives())
        m_frameLebt = false;
    return nullptr;
}
