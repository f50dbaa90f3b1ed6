#pragma once

namespace kartella {

// The argument values of the recordset and connection calls, with ADO's numbers.
namespace ConnectModeEnum {
constexpr int Unknown = 0;
constexpr int ShareDenyNone = 16;
} // namespace ConnectModeEnum

namespace CursorLocationEnum {
constexpr int UseServer = 2;
constexpr int UseClient = 3;
} // namespace CursorLocationEnum

namespace CursorTypeEnum {
constexpr int Unspecified = -1;
constexpr int ForwardOnly = 0;
constexpr int Keyset = 1;
constexpr int Dynamic = 2;
constexpr int Static = 3;
} // namespace CursorTypeEnum

namespace LockTypeEnum {
constexpr int Unspecified = -1;
constexpr int ReadOnly = 1;
constexpr int Pessimistic = 2;
constexpr int Optimistic = 3;
// Edits stay pending until updateBatch.
constexpr int BatchOptimistic = 4;
} // namespace LockTypeEnum

namespace AffectEnum {
constexpr int Current = 1;
constexpr int Group = 2;
constexpr int All = 3;
} // namespace AffectEnum

// What Recordset::resync reads again.
namespace ResyncEnum {
constexpr int UnderlyingValues = 1;
constexpr int AllValues = 2;
} // namespace ResyncEnum

namespace EditModeEnum {
constexpr int None = 0;
constexpr int InProgress = 1;
constexpr int Add = 2;
} // namespace EditModeEnum

// absolutePosition when there is no current row.
// Filters that name a kind of row rather than a criterion.
namespace FilterGroupEnum {
constexpr int None = 0;
// The rows with changes that updateBatch hasn't written: added, changed.
constexpr int PendingRecords = 1;
} // namespace FilterGroupEnum

namespace PositionEnum {
constexpr int Unknown = -1;
constexpr int BOF = -2;
constexpr int EOF_ = -3;
} // namespace PositionEnum

} // namespace kartella
