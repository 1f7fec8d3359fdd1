#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "corvane/scan/Export.h"

namespace Ondo {

/// The memory of the nodes of one tree.
///
/// Nodes that are made together lie together, which is what parsing and walking spend their time on. A tree
/// belongs to one thread at a time, and so does its arena; different trees share nothing but the count of all
/// nodes, to which an arena adds what has come and gone in one sum. Nodes that are made outside any Scope
/// come from the heap, and under AddressSanitizer all do, so that it sees each of them.
class CORVANE_EXPORT NodeArena {
public:
    /// Lets the nodes that are made on this thread come from an arena. They are counted when it ends.
    class CORVANE_EXPORT Scope {
    public:
        explicit Scope(NodeArena& arena);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        NodeArena* outer_;
    };

    /// The owner's hold on an arena. Nodes that outlive it keep the arena alive.
    struct CORVANE_EXPORT Release {
        void operator()(NodeArena* arena) const;
    };
    static constexpr std::size_t granularity = 16;
    using Owner = std::unique_ptr<NodeArena, Release>;
    static Owner make();

    /// Memory from the arena of the innermost scope, at a multiple of the granularity; null outside of any.
    static void* allocate(std::size_t size);
    static void free(void* memory);
    /// Outside of a scope of the arena, counts too: to be called for the last node of a subtree that goes.
    static void freeRoot(void* memory);

private:
    struct Chunk;
    struct Slab;
    struct FreeChunk;

    static constexpr std::size_t classCount = 33;

    NodeArena() = default;
    ~NodeArena();

    void* take(std::size_t sizeClass);
    void put(Chunk* chunk, void* memory);
    void count();
    void endIfUnused();
    void addChunk(std::size_t sizeClass);
    void offer(Chunk* chunk);
    void withdraw(Chunk* chunk);
    void addSlab();
    void removeSlab(Slab* slab);
    void* takeChunk();
    void putChunk(void* memory, Slab* slab);

    Chunk* offered_[classCount] = {}; ///< by size class: chunks with a free slot
    Slab* slabs_ = nullptr;
    FreeChunk* freeChunks_ = nullptr; ///< for any size
    std::size_t freeChunkCount_ = 0;
    std::size_t slabSize_ = 1; ///< of the next slab, in chunks: they grow with the tree
    std::int64_t liveCount_ = 0;
    std::int64_t countedCount_ = 0; ///< of these, what Node::instanceCount holds
    bool isReleased_ = false;
};

} // namespace Ondo
