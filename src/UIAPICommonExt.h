#pragma once

// Every addition to the fixed interface: the namespace KVCAM::UIAPI::Ext, and members of other classes that
// are off until used. Each header begins with a map of its section; docs/Extensions.md sets each addition
// beside the fixed behaviour that it supplements. Those of KVLineEdit are in its own header.
//
// A function that can fail returns an Ext::Result (ok, reason). A check lists what it found as Ext::Finding
// (where, kind, text). Only EdaSendResult is an enumeration, since a host acts on it.

#include "ext/Analysis.h"
#include "ext/Configuration.h"
#include "ext/EdaLink.h"
#include "ext/Forms.h"
#include "ext/Hotkeys.h"
#include "ext/Layers.h"
#include "ext/Messages.h"
#include "ext/Values.h"
#include "ext/Version.h"
#include "ext/Views.h"
#include "support/Finding.h"
#include "support/Result.h"
#include "widgets/KVLineEdit.h"
