#pragma once
#include "ui/ZOLJobCommand.h"

// The project notes.
class ZOLNotesCommand : public ZOLJobCommand {
public:
    ZOLNotesCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                    ZOLEditPlace place, const QString& text);
};
