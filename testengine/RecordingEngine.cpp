#include "UIAPICommonTest/RecordingEngine.h"

#include <stdexcept>
#include <utility>

namespace KVCAM::Testing {

RecordingEngine & RecordingEngine::get()
{
    static RecordingEngine engine;
    return engine;
}

Lines RecordingEngine::take()
{
    return std::exchange(m_calls, {});
}

void RecordingEngine::throwFrom(std::string const & name, std::string const & text)
{
    m_throws[name] = text;
    m_unmet.insert(name);
}

void RecordingEngine::throwNonStandardFrom(std::string const & name)
{
    m_nonStandardThrows.insert(name);
    m_unmet.insert(name);
}

void RecordingEngine::throwFromEveryCall(bool standard)
{
    m_throwsAlways = standard;
    m_throwsAlwaysNonStandard = !standard;
}

void RecordingEngine::onNextCall(std::string const & name, std::function<void()> action)
{
    m_actions[name] = std::move(action);
    m_unmet.insert(name);
}

Lines RecordingEngine::unmet() const
{
    return {m_unmet.begin(), m_unmet.end()};
}

void RecordingEngine::reset()
{
    *this = RecordingEngine();
}

void RecordingEngine::called(std::string const & space, std::string const & name,
                             std::string const & arguments)
{
    m_calls.push_back(space + "::" + name + "(" + arguments + ")");
    consult(name);
}

void RecordingEngine::consult(std::string const & name)
{
    ++consulted[name];
    m_unmet.erase(name);
    if (auto action = m_actions.extract(name)) {
        action.mapped()();
    }
    if (auto const found = m_throws.find(name); found != m_throws.end()) {
        throw std::runtime_error(found->second);
    }
    if (m_throwsAlways) {
        throw std::runtime_error(name);
    }
    if (m_throwsAlwaysNonStandard || m_nonStandardThrows.count(name) != 0) {
        throw 42; // a host may throw anything
    }
}

} // namespace KVCAM::Testing
