// Every public header of the toolkit.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "assist/Keyboard.h"

#include "shell/HandCursor.h"
#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

#include "controls/HyperLink.h"
#include "controls/KeyedPicture.h"
#include "controls/NoteStatic.h"
#include "faces/PaletteDib.h"
#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"

#include "dialogs/BaseDialog.h"
#include "dialogs/DialogTS.h"
#include "units/DialogUnits.h"
#include "dialogs/ModellessDlg.h"
