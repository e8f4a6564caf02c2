// All host interfaces at once: what a host implements and hands to the library. Each subject has a header of its own; the general rules
// stand at the head of host_mesh.h.
#pragma once

#include <btz/host_boundary.h>
#include <btz/host_connectors.h>
#include <btz/host_curves.h>
#include <btz/host_entities.h>
#include <btz/host_groups.h>
#include <btz/host_loads.h>
#include <btz/host_materials.h>
#include <btz/host_mesh.h>
#include <btz/host_records.h>
