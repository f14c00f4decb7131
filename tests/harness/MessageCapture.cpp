#include "harness/MessageCapture.h"

#include <utility>

namespace KVCAM::Testing {

using UIAPI::Ext::Message;
using UIAPI::Ext::MessageAnswer;
using UIAPI::Ext::MessageKind;

MessageCapture::MessageCapture()
{
    m_previous = UIAPI::Ext::setMessagePresenter([this](Message const & message) {
        bool const question = message.kind == MessageKind::Question;
        m_boxes.push_back(std::string(question ? "question|" : "information|") + message.title.toStdString() +
                          "|" + message.text.toStdString());
        m_lastParent = message.parent;
        return question ? m_answer : MessageAnswer::Ok;
    });
}

MessageCapture::~MessageCapture()
{
    UIAPI::Ext::setMessagePresenter(std::move(m_previous));
}

Lines MessageCapture::take()
{
    return std::exchange(m_boxes, {});
}

} // namespace KVCAM::Testing
