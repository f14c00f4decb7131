#pragma once

#include "LogCapture.h"

#include <UIAPICommonExt.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>

/// \addtogroup testing
namespace KVCAM::Testing {

/// Takes the place of every box of the library while it lives, records it and answers it at once. Then the
/// presenter that was set before returns. GUI thread only.
class MessageCapture
{
public:
    ///@{
    /// Begins and ends the capture.
    MessageCapture()
        : m_previous(UIAPI::Ext::setMessagePresenter(
              [this](UIAPI::Ext::Message const & message) { return show(message); }))
    {}
    ~MessageCapture() { UIAPI::Ext::setMessagePresenter(std::move(m_previous)); }
    MessageCapture(MessageCapture const &) = delete;
    MessageCapture & operator=(MessageCapture const &) = delete;
    ///@}

    /// The boxes since the last take(), each as "information|title|text" or "question|title|text".
    Lines take() { return std::exchange(m_boxes, {}); }
    /// The answer to subsequent questions; No until set.
    void answer(UIAPI::Ext::MessageAnswer answer) { m_answer = answer; }
    /// The answer to the next question alone; several calls, to the next few in order.
    void answerNext(UIAPI::Ext::MessageAnswer answer) { m_next.push_back(answer); }
    /// Runs `action` while the next box is open. It may do what a user could do meanwhile, or delete the
    /// parent.
    void whileNextOpen(std::function<void()> action) { m_action = std::move(action); }
    /// The parent of the latest box; it may have been deleted since.
    QWidget * lastParent() const { return m_lastParent; }
    /// Whether an answer or an action was asked for and no box came for it.
    bool isWaiting() const { return !m_next.empty() || m_action; }

private:
    UIAPI::Ext::MessageAnswer show(UIAPI::Ext::Message const & message)
    {
        using UIAPI::Ext::MessageAnswer;
        bool const question = message.kind == UIAPI::Ext::MessageKind::Question;
        m_boxes.push_back(std::string(question ? "question|" : "information|") + message.title.toStdString() +
                          "|" + message.text.toStdString());
        m_lastParent = message.parent;
        MessageAnswer answer = question ? m_answer : MessageAnswer::Ok;
        if (question && !m_next.empty()) {
            answer = m_next.front();
            m_next.pop_front();
        }
        if (auto const action = std::exchange(m_action, {})) {
            action();
        }
        return answer;
    }

    Lines m_boxes;
    UIAPI::Ext::MessageAnswer m_answer = UIAPI::Ext::MessageAnswer::No;
    std::deque<UIAPI::Ext::MessageAnswer> m_next;
    std::function<void()> m_action;
    QWidget * m_lastParent = nullptr;
    UIAPI::Ext::MessagePresenter m_previous;
};

} // namespace KVCAM::Testing
