#include "ui/ZOLNotesCommand.h"

ZOLNotesCommand::ZOLNotesCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                                 ZOLEditPlace place, const QString& text)
    : ZOLJobCommand(document, std::move(before), std::move(after), std::move(place), text) {}
