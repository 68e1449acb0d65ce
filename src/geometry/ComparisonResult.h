#pragma once

/// What an ordering says of a receiver and the other value: Ascending when the other is greater.
enum class ComparisonResult { Ascending = -1, Same = 0, Descending = 1 };
