#pragma once

#include "tour/StepTools.h"

// The phone: connecting, taking, sending, and what can go wrong.
void AddPhone(CSteps& steps, const CTourFiles& files, CTourMachine& machine);

// Its themes, each in its file.
void AddConnect(CSteps& steps, const CTourFiles& files, CTourMachine& machine);
void AddTake(CSteps& steps, const CTourFiles& files, CTourMachine& machine);
void AddSend(CSteps& steps, const CTourFiles& files, CTourMachine& machine);
void AddPhoneTrouble(CSteps& steps, const CTourFiles& files, CTourMachine& machine);

// --- what the steps share ---

// No dialog is up, and connect, take and send are on as told.
QString CheckPhoneKeys(const CPerson& person, bool bConnected);
// What the picture of the connecting or transferring dialog shows, and the strip below it.
QImage LookAtRunningPicture(const CPerson& person, int nDialog);
QImage LookAtStrip(const CPerson& person, int nDialog);
// The closing box of a connect, a take or a send is answered.
CTourStep Done(const char* szName, const char* szTells, CTourCheck fnCheck);
// A key that begins or ends something.
CTourStep Press(const char* szName, const char* szTells, int nId, CTourCheck fnCheck);
// The screen while files move: nMoves of them, and before each the dialog had painted itself anew. The
// picture that is kept is the last.
CTourStep Moves(const char* szName, const char* szTells, CTourMachine& machine, int nId, std::size_t nMoves);
