#pragma once

namespace Workbench {

class BoardPage;
class ComparePage;
class Session;

/// The page that compares layers of the step in front. It compares two when the board's page wants it, and
/// follows its step and changes. Owned by the caller; the others outlive it.
ComparePage * makeComparison(Session const & session, BoardPage & board);

} // namespace Workbench
