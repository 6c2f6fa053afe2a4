#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "engines/linkset/FileSet.h"

// By what the list of the phone's files can be sorted; the numbers are those of its columns.
enum class EFileColumn { Number, Name, Size };

// Brings positions in the records into order; those of equal rank stay as they stand. Numbers are the phone's
// own ids. Names are compared without case by their bytes in GBK, what GBK lacks counting as a question mark;
// while names in ASCII ascend, those that begin with another letter descend, and the other way round.
void SortFiles(std::span<const CFileItem> items, EFileColumn column, bool bAscending,
               std::vector<std::size_t>& arrOrder);
