// Entry point of the translator. The library exports this one function; everything else reaches it through the host's objects.
#pragma once

#include <btz/host_interfaces.h>

#if defined(_WIN32)
#define BTZ_EXPORT  // The DLL's module definition file names the export.
#else
#define BTZ_EXPORT __attribute__((visibility("default")))
#endif

extern "C" {

/// Translates a NASTRAN bulk data deck, one level of include files included, into the host's objects.
///
/// The call is synchronous, runs on the caller's thread and is not reentrant. The host's objects are called only during it. Progress goes to
/// the console and, if the host has made it, to the 32-bit word in the shared memory object "KRT_PROGRESS"; the log goes to
/// "Bdf_Reader_Log.txt" in the folder that the environment variable QX_SCRATCH_DIR, or else CAE_HOME, names.
///
/// @param deckPath           Path of the deck, UTF-8, at most 259 UTF-16 units. Its folder is also that of all include files. Null: result 1.
/// @param reserved           Not read.
/// @param materialStore      Host's factory of materials and properties. Not null.
/// @param boundaryStore      Host's factory of loads, constraints, load cases and like entities. Not null.
/// @param project            Host's document: gives the model that is filled and receives it at the end. Not null.
/// @param curveStore         Host's factory of curves and fields. Not null.
/// @param splitFaceValue     Above 0.0: the host is asked to split the faces of parts, with this value. Else not.
/// @param earlyTopology      1: the topology is built before the properties, parts keep their numbers. 0: parts are numbered anew and the
///                           topology is built last. Other values: neither.
/// @param thicknessPrecision Number of decimals to which a shell thickness is rounded.
/// @param targetSolver       0: load cases for NASTRAN. Other values: load cases for RADIOSS, no convection.
/// @param groupStore         Host's store of element groups; may be null.
/// @param repairMesh         Exactly 1: the model is asked for defects at the end, and to repair them if it has any.
/// @param splitFaceRepair    Exactly 1: split parts are merged again as long as the host finds something to merge.
/// @return 0 the run reached the end; 1 no path or no `GRID` card; 2 no element of any kind; -5 the file can't be opened, is empty, or holds
///         nothing that looks like a node, an element or an include line.
BTZ_EXPORT std::int32_t BdfToZel_DLL(const char* deckPath, void* reserved, btz::MaterialStore* materialStore,
                                     btz::BoundaryStore* boundaryStore, btz::HostProject* project, btz::CurveStore* curveStore,
                                     double splitFaceValue, std::int32_t earlyTopology, std::int32_t thicknessPrecision,
                                     std::int32_t targetSolver, btz::GroupStore* groupStore, std::uint8_t repairMesh,
                                     std::uint8_t splitFaceRepair);
}
