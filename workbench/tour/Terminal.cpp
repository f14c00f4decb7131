#include "tour/Terminal.h"

#include "job/SystemTwins.h"

#include <algorithm>

namespace Workbench {

namespace {

constexpr int milliseconds = 100; // between two lines
constexpr int longestName = 40;

} // namespace

void print(std::FILE * stream, QByteArray const & text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
}

void say(QString const & text)
{
    print(stderr, "uiapi-workbench: " + text.toUtf8() + '\n');
}

QString printable(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QChar('?'));
    return text;
}

TerminalProgress::TerminalProgress(int boards) : m_isShown(isTerminal(stderr)), m_boards(boards) {}

void TerminalProgress::next(QString const & board)
{
    clear();
    ++m_board;
    m_name = printable(board).left(longestName);
    m_sinceShown.invalidate();
    show(0, 0);
}

void TerminalProgress::show(int done, int total)
{
    if (!m_isShown || (m_sinceShown.isValid() && m_sinceShown.elapsed() < milliseconds)) {
        return;
    }
    QString line = QString("%1/%2 %3").arg(m_board).arg(m_boards).arg(m_name);
    if (total > 0) {
        line += QString(" %1 %").arg(100LL * done / total);
    }
    int const width = line.size();
    print(stderr, line.leftJustified(m_width).toUtf8() + '\r');
    std::fflush(stderr);
    m_width = width;
    m_sinceShown.start();
}

void TerminalProgress::clear()
{
    if (m_width > 0) {
        print(stderr, QByteArray(m_width, ' ') + '\r');
        m_width = 0;
    }
}

} // namespace Workbench
