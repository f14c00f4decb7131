#pragma once

// Layers, directories of jobs and undo.
//
//   explainLayerFilter()   what selectLayersByType() makes of a request, by layer and by word
//   setRemovalRoots()      the only folders below which delDir() may remove
//   undoCount()            how many operations undo() could take back, without asking the user
//
// Each stands alone: explainLayerFilter() and undoCount() ask the engine, setRemovalRoots() is a switch of
// the host's for the life of the process.

#include "../layers/LayerFilterReport.h"
#include "../layers/RemovalRoots.h"
#include "../layers/UndoCount.h"
