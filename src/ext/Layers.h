#pragma once

// Layers, directories of jobs and undo.
//
//   explainLayerFilter()   what selectLayersByType() makes of a request: each layer's verdict, unmatched
//   words setRemovalRoots()      the only folders below which delDir() may remove undoCount()            how
//   many operations undo() could take back, without asking anybody
//
// Each stands alone: explainLayerFilter() and undoCount() ask the engine, setRemovalRoots() is a switch of
// the host's for the life of the process.

#include "../layers/LayerFilterReport.h"
#include "../layers/RemovalRoots.h"
#include "../layers/UndoCount.h"
