#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <thread>

#include "dialogs/Dialog3d.h"

/// Does something with many items on a thread of its own, which can use COM; tells how far it is and can be cancelled.
/// The owner takes no input meanwhile, but answers. What is done in a moment shows no dialog.
class CBusyDialog : public CDialog3d
{
public:
    /// work: called on the thread, for one item after the other. what: what is being done.
    CBusyDialog(CWnd & owner, CString const & what, std::size_t count, std::function<void(std::size_t item)> work);
    ~CBusyDialog() override;

    /// Does it, and gives with how many items it was done: all, unless the user has cancelled it.
    std::size_t Run();

    /// Does it with that many items, at once where they are few. Whether it was done with all.
    static bool DoAll(CWnd & owner, CString const & what, std::size_t count,
                      std::function<void(std::size_t item)> const & work);

    BOOL OnInitDialog() override;

protected:
    void OnOK() override {}
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnDone(WPARAM, LPARAM);
    afx_msg void OnWindowPosChanging(WINDOWPOS * place);

    void Work(HWND dialog);
    void Stop();

    CString m_what;
    std::size_t m_count;
    std::function<void(std::size_t)> m_work;
    std::atomic<std::size_t> m_done = 0;
    std::atomic<bool> m_stop = false;
    bool m_mayShow = false;
    std::thread m_thread;
};
