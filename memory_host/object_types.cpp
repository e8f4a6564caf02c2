#include "memory_host/object_types.h"

#include <array>

namespace btz::memory {

namespace {

constexpr std::array<const char*, objectTypeCount> typeNames = {"HostProject",
                                                                "MeshModel",
                                                                "MaterialStore",
                                                                "BoundaryStore",
                                                                "CurveStore",
                                                                "GroupStore",
                                                                "MeshPart",
                                                                "TopoFace",
                                                                "TopoEdge",
                                                                "FaceMesh",
                                                                "Solid",
                                                                "Shell",
                                                                "Material",
                                                                "Property",
                                                                "SectionCalculator",
                                                                "Field",
                                                                "Curve",
                                                                "Group",
                                                                "LoadCase",
                                                                "ParameterSet",
                                                                "CoordinateSystem",
                                                                "NodeSystemAssignment",
                                                                "EntitySet",
                                                                "Surface",
                                                                "Constraint",
                                                                "ForceLoad",
                                                                "Pressure",
                                                                "ThermalLoad",
                                                                "Convection",
                                                                "Flux",
                                                                "BodyLoad",
                                                                "Pretension",
                                                                "Excitation",
                                                                "Damping",
                                                                "Mpc",
                                                                "RigidConnection",
                                                                "MassEntity",
                                                                "Spring",
                                                                "Bush",
                                                                "GapEntity",
                                                                "PlotEntity"};

}  // namespace

const char* TypeName(ObjectType type) { return typeNames[static_cast<std::size_t>(type)]; }

}  // namespace btz::memory
