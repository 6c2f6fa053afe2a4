#pragma once

#include "engines/page/Papers.h"

class QString;

// What the system's print service says of its queues beyond what Qt hands on. It is asked through its own
// library, which Qt has loaded for the same purpose; where that is not there the answers are the usual ones.

// Which way round the queue prints unless it is told.
EOrientation QueueOrientation(const QString& strPrinter);

// False if the service refused this program's last job, or could not be reached.
bool WasJobTaken();
