// Freezes, at compile time, the layout of everything that crosses the boundary as plain memory. A host that was built with another
// compiler, or years ago, depends on each line; the order of the virtual operations is compared elsewhere, by the virtual tables
// themselves.
#include <cstddef>
#include <type_traits>

#include "host/host_interfaces.h"

namespace btz {
namespace {

static_assert(sizeof(void*) == 8, "the boundary is 64-bit");
static_assert(sizeof(double) == 8 && alignof(double) == 8);
#ifdef _WIN32
static_assert(sizeof(wchar_t) == 2);
#else
static_assert(sizeof(wchar_t) == 4);
#endif

// Containers.
static_assert(sizeof(PoolBlock) == 16 && offsetof(PoolBlock, next) == 0 && offsetof(PoolBlock, top) == 8);

static_assert(sizeof(BlockPool) == 56);
static_assert(offsetof(BlockPool, firstBlock) == 0);
static_assert(offsetof(BlockPool, currentBlock) == 8);
static_assert(offsetof(BlockPool, blockSize) == 16);
static_assert(offsetof(BlockPool, requestedBytes) == 24);
static_assert(offsetof(BlockPool, allocatedBytes) == 32);
static_assert(offsetof(BlockPool, allocate) == 40);
static_assert(offsetof(BlockPool, release) == 48);

static_assert(sizeof(ListCell) == 16 && offsetof(ListCell, next) == 0 && offsetof(ListCell, value) == 8);
static_assert(sizeof(ListCellPool) == 64 && offsetof(ListCellPool, freeCells) == 0 && offsetof(ListCellPool, blocks) == 8);

// PooledList begins with a ListCell, so it is no standard-layout type and offsetof is only conditionally supported; all our compilers do.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
static_assert(sizeof(PooledList) == 48);
static_assert(offsetof(PooledList, next) == 0);
static_assert(offsetof(PooledList, value) == 8);
static_assert(offsetof(PooledList, cursor) == 16);
static_assert(offsetof(PooledList, previous) == 24);
static_assert(offsetof(PooledList, pool) == 32);
static_assert(offsetof(PooledList, stay) == 40);
static_assert(offsetof(PooledList, size) == 44);
static_assert(std::is_trivially_copyable_v<PooledList>);
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

static_assert(sizeof(HashCell) == 16 && offsetof(HashCell, next) == 0 && offsetof(HashCell, record) == 8);

static_assert(sizeof(HashTable) == 160);
static_assert(offsetof(HashTable, freeCells) == 0);
static_assert(offsetof(HashTable, pool) == 8);
static_assert(offsetof(HashTable, bucketCount) == 64);
static_assert(offsetof(HashTable, reserved) == 68);
static_assert(offsetof(HashTable, buckets) == 80);
static_assert(offsetof(HashTable, userData) == 88);
static_assert(offsetof(HashTable, allowDuplicates) == 96);
static_assert(offsetof(HashTable, hash) == 104);
static_assert(offsetof(HashTable, compare) == 112);
static_assert(offsetof(HashTable, count) == 120);
static_assert(offsetof(HashTable, iteratorBucket) == 124);
static_assert(offsetof(HashTable, highestBucket) == 128);
static_assert(offsetof(HashTable, iteratorCell) == 136);
static_assert(offsetof(HashTable, allocate) == 144);
static_assert(offsetof(HashTable, release) == 152);

// Mesh records.
static_assert(sizeof(MeshNode) == 40);
static_assert(offsetof(MeshNode, id) == 0);
static_assert(offsetof(MeshNode, position) == 8);
static_assert(offsetof(MeshNode, coordinateSystemId) == 32);
static_assert(offsetof(MeshNode, mark) == 36);
static_assert(std::is_standard_layout_v<MeshNode> && std::is_trivial_v<MeshNode>);

static_assert(sizeof(MeshElement) == 72);
static_assert(offsetof(MeshElement, id) == 0);
static_assert(offsetof(MeshElement, rigidKind) == 4);
static_assert(offsetof(MeshElement, typeIndex) == 8);
static_assert(offsetof(MeshElement, normal) == 16);
static_assert(offsetof(MeshElement, nodes) == 40);
static_assert(offsetof(MeshElement, mark) == 48);
static_assert(offsetof(MeshElement, owner) == 56);
static_assert(offsetof(MeshElement, faces) == 64);
static_assert(std::is_standard_layout_v<MeshElement> && std::is_trivial_v<MeshElement>);

// Value and descriptor records. Wide texts have the platform's width, so their records differ in size between Windows and the others.
static_assert(sizeof(NamedValue) == 280);
static_assert(offsetof(NamedValue, key) == 0);
static_assert(offsetof(NamedValue, kind) == 256);
static_assert(offsetof(NamedValue, extent) == 260);
static_assert(offsetof(NamedValue, text) == 264);
static_assert(offsetof(NamedValue, value) == 272);
static_assert(sizeof(NamedValue::value) == 8);
static_assert(std::is_standard_layout_v<NamedValue> && std::is_trivial_v<NamedValue>);

constexpr std::size_t wideText = 256 * sizeof(wchar_t);

static_assert(sizeof(PropertyDescriptor) == 16 + 2 * wideText);
static_assert(offsetof(PropertyDescriptor, reserved) == 0);
static_assert(offsetof(PropertyDescriptor, number) == 4);
static_assert(offsetof(PropertyDescriptor, material) == 8);
static_assert(offsetof(PropertyDescriptor, propertyClass) == 16);
static_assert(offsetof(PropertyDescriptor, materialClass) == 16 + wideText);
static_assert(std::is_standard_layout_v<PropertyDescriptor> && std::is_trivial_v<PropertyDescriptor>);

static_assert(sizeof(MaterialDescriptor) == 80 + 5 * wideText);
static_assert(offsetof(MaterialDescriptor, reserved) == 0);
static_assert(offsetof(MaterialDescriptor, name) == 80);
static_assert(offsetof(MaterialDescriptor, symmetry) == 80 + wideText);
static_assert(offsetof(MaterialDescriptor, behaviour) == 80 + 2 * wideText);
static_assert(offsetof(MaterialDescriptor, family) == 80 + 3 * wideText);
static_assert(offsetof(MaterialDescriptor, note) == 80 + 4 * wideText);
static_assert(std::is_standard_layout_v<MaterialDescriptor> && std::is_trivial_v<MaterialDescriptor>);

static_assert(sizeof(SectionValues) == 16 * sizeof(double));
static_assert(offsetof(SectionValues, i1) == 0);
static_assert(offsetof(SectionValues, i2) == 8);
static_assert(offsetof(SectionValues, area) == 16);
static_assert(offsetof(SectionValues, torsion) == 24);
static_assert(offsetof(SectionValues, nonStructuralMass) == 32);
static_assert(offsetof(SectionValues, i12) == 40);
static_assert(offsetof(SectionValues, c1) == 48);
static_assert(offsetof(SectionValues, c2) == 56);
static_assert(offsetof(SectionValues, d1) == 64);
static_assert(offsetof(SectionValues, d2) == 72);
static_assert(offsetof(SectionValues, e1) == 80);
static_assert(offsetof(SectionValues, e2) == 88);
static_assert(offsetof(SectionValues, f1) == 96);
static_assert(offsetof(SectionValues, f2) == 104);
static_assert(offsetof(SectionValues, k1) == 112);
static_assert(offsetof(SectionValues, k2) == 120);

static_assert(sizeof(CutPartStep) == 8 && offsetof(CutPartStep, id) == 0 && offsetof(CutPartStep, kind) == 4);

// An interface is nothing but its table: no data, no second base, and a pointer to a derived one is a pointer to its base.
template <typename Interface>
constexpr bool isBareInterface = sizeof(Interface) == sizeof(void*) && std::is_abstract_v<Interface> &&
                                 !std::has_virtual_destructor_v<Interface>;

static_assert(isBareInterface<HostProject> && isBareInterface<MeshModel>);
static_assert(isBareInterface<TopoEntity> && isBareInterface<TopoEdge> && isBareInterface<MeshPart> && isBareInterface<TopoFace>);
static_assert(isBareInterface<FaceMesh> && isBareInterface<Solid>);
static_assert(isBareInterface<BoundaryStore> && isBareInterface<LoadCase> && isBareInterface<ParameterSet>);
static_assert(isBareInterface<Entity> && isBareInterface<CoordinateSystem> && isBareInterface<NodeSystemAssignment>);
static_assert(isBareInterface<EntitySet> && isBareInterface<Surface>);
static_assert(isBareInterface<Constraint> && isBareInterface<ForceLoad> && isBareInterface<Pressure> && isBareInterface<ThermalLoad>);
static_assert(isBareInterface<Convection> && isBareInterface<Flux> && isBareInterface<BodyLoad> && isBareInterface<Pretension>);
static_assert(isBareInterface<Excitation> && isBareInterface<Damping>);
static_assert(isBareInterface<Mpc> && isBareInterface<RigidConnection> && isBareInterface<MassEntity> && isBareInterface<Spring>);
static_assert(isBareInterface<Bush> && isBareInterface<GapEntity> && isBareInterface<PlotEntity>);
static_assert(isBareInterface<MaterialStore> && isBareInterface<Material> && isBareInterface<Property> &&
              isBareInterface<SectionCalculator>);
static_assert(isBareInterface<CurveStore> && isBareInterface<Field> && isBareInterface<Curve>);
static_assert(isBareInterface<GroupStore> && isBareInterface<Group>);

}  // namespace
}  // namespace btz
