#pragma once

// Layers, directories of jobs and undo.
//
//   explainLayerFilter()   how selectLayersByType() treats a request, by layer and by word
//   LayerModel             the layers of a matrix as a table for item views
//   setRemovalRoots()      the only folders below which delDir() may remove
//   undoCount()            how many operations undo() could take back, without asking the user
//
// They are independent: explainLayerFilter() and undoCount() ask the engine; the host calls setRemovalRoots()
// once, for the life of the process.

#include "../layers/LayerFilterReport.h"
#include "../layers/LayerModel.h"
#include "../layers/RemovalRoots.h"
#include "../layers/UndoCount.h"
