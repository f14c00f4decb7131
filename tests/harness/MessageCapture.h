#pragma once

#include "harness/LogCapture.h"
#include "support/MessagePresenter.h"

namespace KVCAM::Testing {

/// Takes the place of every box while it lives and records each as "information|title|text" or
/// "question|title|text".
class MessageCapture
{
public:
    MessageCapture();
    ~MessageCapture();
    MessageCapture(MessageCapture const &) = delete;
    MessageCapture & operator=(MessageCapture const &) = delete;

    Lines take();
    /// The answer to subsequent questions; No until set.
    void answer(UIAPI::Ext::MessageAnswer answer) { m_answer = answer; }
    /// The parent of the latest box.
    QWidget * lastParent() const { return m_lastParent; }

private:
    Lines m_boxes;
    UIAPI::Ext::MessageAnswer m_answer = UIAPI::Ext::MessageAnswer::No;
    QWidget * m_lastParent = nullptr;
    UIAPI::Ext::MessagePresenter m_previous;
};

/// An information box with the usual title, as recorded by MessageCapture.
inline std::string informationBox(std::string const & text)
{
    return "information|Information|" + text;
}

} // namespace KVCAM::Testing
