// The host as the rooms of the translator see it: the public interfaces, and what all rooms hold to at the boundary.
//  - `*out` is set to null before each create and before each look-up whose result is tested; a host leaves it alone or nulls it on
//    failure.
//  - A create that reports success but gave no object has failed.
//  - A list or mesh that a host did not give counts as empty, and a null value in a host's list ends its walk.
//  - Whatever is filled for a host (lists, rows, value records, descriptors) is released as soon as the call has returned.
#pragma once

#include <btz/host_interfaces.h>
