#pragma once
#include "ui/ZOLJobCommand.h"

// A worksheet added, renamed or deleted; undoing a delete puts the worksheet back at its place
// in the list, with its records.
class ZOLWorksheetCommand : public ZOLJobCommand {
public:
    ZOLWorksheetCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                        ZOLEditPlace place, const QString& text);
};
