// The layouts that cross the boundary, frozen: a host built elsewhere counts on every number below. Compiled with each build's compiler
// and, against stand-ins for the C++ library, for the Microsoft ABI. Numbers are bytes.
#include <btz/host_interfaces.h>

#include <cstddef>

#if defined(__GNUC__)
// A list's head is laid out behind its base, the cell, as all ABIs in question do it.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

namespace btz {

#define AT(type, field, offset) static_assert(offsetof(type, field) == (offset), #type "." #field " has moved")
#define SIZE(type, size) static_assert(sizeof(type) == (size), #type " has another size")

SIZE(void*, 8);
SIZE(AllocateFunction, 8);
#if defined(_WIN32)
SIZE(wchar_t, 2);
#else
SIZE(wchar_t, 4);
#endif

SIZE(PoolBlock, 16);
AT(PoolBlock, next, 0);
AT(PoolBlock, top, 8);

SIZE(BlockPool, 56);
AT(BlockPool, firstBlock, 0);
AT(BlockPool, currentBlock, 8);
AT(BlockPool, blockSize, 16);
AT(BlockPool, requestedBytes, 24);
AT(BlockPool, allocatedBytes, 32);
AT(BlockPool, allocate, 40);
AT(BlockPool, release, 48);

SIZE(ListCell, 16);
AT(ListCell, next, 0);
AT(ListCell, value, 8);

SIZE(ListCellPool, 64);
AT(ListCellPool, freeCells, 0);
AT(ListCellPool, blocks, 8);

SIZE(PooledList, 48);
AT(PooledList, next, 0);
AT(PooledList, value, 8);
AT(PooledList, cursor, 16);
AT(PooledList, previous, 24);
AT(PooledList, pool, 32);
AT(PooledList, stay, 40);
AT(PooledList, size, 44);

SIZE(HashCell, 16);
AT(HashCell, next, 0);
AT(HashCell, record, 8);

SIZE(HashTable, 160);
AT(HashTable, freeCells, 0);
AT(HashTable, pool, 8);
AT(HashTable, bucketCount, 64);
AT(HashTable, reserved, 68);
AT(HashTable, buckets, 80);
AT(HashTable, userData, 88);
AT(HashTable, allowDuplicates, 96);
AT(HashTable, hash, 104);
AT(HashTable, compare, 112);
AT(HashTable, count, 120);
AT(HashTable, iteratorBucket, 124);
AT(HashTable, highestBucket, 128);
AT(HashTable, iteratorCell, 136);
AT(HashTable, allocate, 144);
AT(HashTable, release, 152);

SIZE(MeshNode, 40);
AT(MeshNode, id, 0);
AT(MeshNode, position, 8);
AT(MeshNode, coordinateSystemId, 32);
AT(MeshNode, mark, 36);

SIZE(MeshElement, 72);
AT(MeshElement, id, 0);
AT(MeshElement, rigidKind, 4);
AT(MeshElement, typeIndex, 8);
AT(MeshElement, normal, 16);
AT(MeshElement, nodes, 40);
AT(MeshElement, mark, 48);
AT(MeshElement, owner, 56);
AT(MeshElement, faces, 64);

SIZE(ValueKind, 4);
SIZE(NamedValue, 280);
AT(NamedValue, key, 0);
AT(NamedValue, kind, 256);
AT(NamedValue, extent, 260);
AT(NamedValue, text, 264);
AT(NamedValue, value, 272);

SIZE(PropertyDescriptor, 16 + 2 * 256 * sizeof(wchar_t));
AT(PropertyDescriptor, reserved, 0);
AT(PropertyDescriptor, number, 4);
AT(PropertyDescriptor, material, 8);
AT(PropertyDescriptor, propertyClass, 16);
AT(PropertyDescriptor, materialClass, 16 + 256 * sizeof(wchar_t));

SIZE(MaterialDescriptor, 80 + 5 * 256 * sizeof(wchar_t));
AT(MaterialDescriptor, reserved, 0);
AT(MaterialDescriptor, name, 80);
AT(MaterialDescriptor, symmetry, 80 + 256 * sizeof(wchar_t));
AT(MaterialDescriptor, behaviour, 80 + 2 * 256 * sizeof(wchar_t));
AT(MaterialDescriptor, family, 80 + 3 * 256 * sizeof(wchar_t));
AT(MaterialDescriptor, note, 80 + 4 * 256 * sizeof(wchar_t));

SIZE(SectionValues, 128);
AT(SectionValues, i1, 0);
AT(SectionValues, i2, 8);
AT(SectionValues, area, 16);
AT(SectionValues, torsion, 24);
AT(SectionValues, nonStructuralMass, 32);
AT(SectionValues, i12, 40);
AT(SectionValues, c1, 48);
AT(SectionValues, c2, 56);
AT(SectionValues, d1, 64);
AT(SectionValues, d2, 72);
AT(SectionValues, e1, 80);
AT(SectionValues, e2, 88);
AT(SectionValues, f1, 96);
AT(SectionValues, f2, 104);
AT(SectionValues, k1, 112);
AT(SectionValues, k2, 120);

SIZE(CutPartStep, 8);
AT(CutPartStep, id, 0);
AT(CutPartStep, kind, 4);

#undef AT
#undef SIZE

}  // namespace btz
