#pragma once
#include "ui/ZOLEditPlace.h"
#include "ui/ZOLJobValues.h"

#include <QUndoCommand>

class ZOLJobDocument;

// One change to a job in the undo history: the values of the records it touched before and
// after. Undo and redo assign them back into the job's records and show the place of the change;
// they never run the screens' own rules again.
class ZOLJobCommand : public QUndoCommand {
public:
    ZOLJobCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                  ZOLEditPlace place, const QString& text);

    void undo() override;
    void redo() override;
    // Typing on in the same field continues the change before it.
    bool mergeWith(const QUndoCommand* other) override;

private:
    ZOLJobDocument* document_;
    ZOLJobValues before_;
    ZOLJobValues after_;
    ZOLEditPlace place_;
    // The change is already made when the command is recorded.
    bool made_ = true;
};
