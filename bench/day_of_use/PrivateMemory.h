#pragma once

/// The memory of this process, in bytes; 0 where the system does not tell.
struct PrivateMemory {
    /// What the process has for itself: allocations, their gaps, stacks, changed pages of libraries. Pages that the
    /// heap no longer needs are given back first, where that can be asked for.
    static double held();

    /// What is allocated and not freed.
    static double allocated();
};
