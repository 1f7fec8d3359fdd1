#include "corvane/tree/NodeArena.h"

#include <algorithm>
#include <new>
#include <utility>

#include "corvane/scan/Assert.h"
#include "corvane/tree/Node.h"

namespace Ondo {

namespace {

/// Chunks lie at multiples of their size, so that a slot finds its chunk.
constexpr std::size_t chunkSize = 16 * 1024;
/// In chunks. With what its alignment costs, a slab stays below the 128 KB from which on a heap may take
/// memory from the system each time anew, and hand it back: page faults, in which threads wait for one
/// another.
constexpr std::size_t largestSlab = 6;

constinit thread_local NodeArena* current = nullptr;

constexpr bool isSanitized() {
#if defined(__SANITIZE_ADDRESS__)
    return true;
#elif defined(__has_feature)
    return __has_feature(address_sanitizer);
#else
    return false;
#endif
}

} // namespace

/// Chunks that come from the heap together, which is cheaper than one by one.
struct NodeArena::Slab {
    std::byte* memory;
    std::size_t chunkCount;
    std::size_t freeCount = 0;
    Slab* previous = nullptr;
    Slab* next = nullptr;
};

struct NodeArena::FreeChunk {
    Slab* slab;
    FreeChunk* previous;
    FreeChunk* next;
};

/// A stretch of slots of one size.
struct NodeArena::Chunk {
    struct Slot {
        Slot* next;
    };

    NodeArena* arena;
    Slab* slab;
    std::size_t sizeClass;
    Chunk* previous = nullptr;
    Chunk* next = nullptr;
    Slot* freed = nullptr;
    std::byte* fresh;     ///< the first slot that was never taken
    std::byte* lastFresh; ///< where the last slot lies
    std::size_t slotSize;
    std::size_t liveCount = 0;

    Chunk(NodeArena* arena_, Slab* slab_, std::size_t sizeClass_)
        : arena(arena_), slab(slab_), sizeClass(sizeClass_), fresh(begin()),
          slotSize(sizeClass_ * granularity) {
        lastFresh = end() - slotSize;
    }

    std::byte* begin() {
        constexpr std::size_t headerSize = (sizeof(Chunk) + granularity - 1) / granularity * granularity;
        return reinterpret_cast<std::byte*>(this) + headerSize;
    }
    std::byte* end() { return reinterpret_cast<std::byte*>(this) + chunkSize; }
    bool isFull() const { return !freed && fresh > lastFresh; }

    void* take() {
        ++liveCount;
        if (freed) return std::exchange(freed, freed->next);
        return std::exchange(fresh, fresh + slotSize);
    }
    void put(void* memory) {
        --liveCount;
        freed = new (memory) Slot{freed};
    }
    static Chunk* of(void* memory) {
        return reinterpret_cast<Chunk*>(reinterpret_cast<std::uintptr_t>(memory) & ~(chunkSize - 1));
    }
};

NodeArena::Scope::Scope(NodeArena& arena)
    : outer_(std::exchange(current, isSanitized() ? nullptr : &arena)) {}

NodeArena::Scope::~Scope() {
    if (current) current->count();
    current = outer_;
}

void NodeArena::Release::operator()(NodeArena* arena) const {
    arena->isReleased_ = true;
    arena->endIfUnused();
}

NodeArena::Owner NodeArena::make() {
    return Owner(new NodeArena);
}

NodeArena::~NodeArena() {
    count();
    while (slabs_)
        removeSlab(slabs_);
}

void* NodeArena::allocate(std::size_t size) {
    return current ? current->take((size + granularity - 1) / granularity) : nullptr;
}

void NodeArena::free(void* memory) {
    Chunk* const chunk = Chunk::of(memory);
    NodeArena* const arena = chunk->arena;
    arena->put(chunk, memory);
    arena->endIfUnused();
}

void NodeArena::freeRoot(void* memory) {
    Chunk* const chunk = Chunk::of(memory);
    NodeArena* const arena = chunk->arena;
    arena->put(chunk, memory);
    if (current != arena) arena->count();
    arena->endIfUnused();
}

void* NodeArena::take(std::size_t sizeClass) {
    CORVANE_ASSERT(sizeClass < classCount, "NodeArena");
    if (!offered_[sizeClass]) addChunk(sizeClass);
    Chunk* const chunk = offered_[sizeClass];
    void* const memory = chunk->take();
    ++liveCount_;
    if (chunk->isFull()) withdraw(chunk);
    return memory;
}

void NodeArena::put(Chunk* chunk, void* memory) {
    const bool wasFull = chunk->isFull();
    chunk->put(memory);
    if (wasFull) offer(chunk);
    // The last chunk of a size stays, so that typing does not take and give back one at every keystroke.
    const bool isOnly = offered_[chunk->sizeClass] == chunk && !chunk->next;
    if (chunk->liveCount == 0 && !isOnly) {
        withdraw(chunk);
        putChunk(chunk, chunk->slab);
    }
    --liveCount_;
}

void NodeArena::endIfUnused() {
    if (liveCount_ == 0 && isReleased_) delete this;
}

/// Threads wait for one another at an atomic, which therefore is not touched for each node.
void NodeArena::count() {
    if (liveCount_ == countedCount_) return;
    Node::instanceCount.fetch_add(liveCount_ - countedCount_, std::memory_order_relaxed);
    countedCount_ = liveCount_;
}

void NodeArena::addChunk(std::size_t sizeClass) {
    if (!freeChunks_) addSlab();
    Slab* const slab = freeChunks_->slab;
    offer(new (takeChunk()) Chunk(this, slab, sizeClass));
}

void NodeArena::addSlab() {
    auto* const memory =
        static_cast<std::byte*>(::operator new(slabSize_* chunkSize, std::align_val_t(chunkSize)));
    auto* const slab = new Slab{memory, slabSize_};
    slab->next = slabs_;
    if (slabs_) slabs_->previous = slab;
    slabs_ = slab;
    for (std::size_t i = slabSize_; i > 0; --i)
        putChunk(memory + (i - 1) * chunkSize, slab);
    slabSize_ = std::min(2 * slabSize_, largestSlab);
}

void NodeArena::removeSlab(Slab* slab) {
    (slab->previous ? slab->previous->next : slabs_) = slab->next;
    if (slab->next) slab->next->previous = slab->previous;
    ::operator delete(slab->memory, std::align_val_t(chunkSize));
    delete slab;
}

void* NodeArena::takeChunk() {
    FreeChunk* const chunk = freeChunks_;
    freeChunks_ = chunk->next;
    if (freeChunks_) freeChunks_->previous = nullptr;
    --chunk->slab->freeCount;
    --freeChunkCount_;
    return chunk;
}

/// A slab goes back when all its chunks are free and others are left to be taken.
void NodeArena::putChunk(void* memory, Slab* slab) {
    freeChunks_ = new (memory) FreeChunk{slab, nullptr, freeChunks_};
    if (freeChunks_->next) freeChunks_->next->previous = freeChunks_;
    ++freeChunkCount_;
    if (++slab->freeCount < slab->chunkCount || freeChunkCount_ < 2 * slab->chunkCount) return;
    for (std::size_t i = 0; i < slab->chunkCount; ++i) {
        auto* const chunk = reinterpret_cast<FreeChunk*>(slab->memory + i * chunkSize);
        (chunk->previous ? chunk->previous->next : freeChunks_) = chunk->next;
        if (chunk->next) chunk->next->previous = chunk->previous;
    }
    freeChunkCount_ -= slab->chunkCount;
    removeSlab(slab);
}

void NodeArena::offer(Chunk* chunk) {
    Chunk*& first = offered_[chunk->sizeClass];
    chunk->previous = nullptr;
    chunk->next = first;
    if (first) first->previous = chunk;
    first = chunk;
}

void NodeArena::withdraw(Chunk* chunk) {
    (chunk->previous ? chunk->previous->next : offered_[chunk->sizeClass]) = chunk->next;
    if (chunk->next) chunk->next->previous = chunk->previous;
    chunk->previous = chunk->next = nullptr;
}

} // namespace Ondo
