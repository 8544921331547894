#pragma once
#include "ui/ZOLJobCommand.h"

// The job summary: a line added, edited or deleted, the tab switches, full bundles, a
// template loaded.
class ZOLJobSummaryCommand : public ZOLJobCommand {
public:
    ZOLJobSummaryCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                         ZOLEditPlace place, const QString& text);
};
