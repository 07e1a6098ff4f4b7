// A trie over bytes: the shape alone, its users keep what belongs to the nodes.
#ifndef KZ_MORPHOLOGY_BYTE_TRIE_H
#define KZ_MORPHOLOGY_BYTE_TRIE_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kz {

// Nodes are numbered from 0, the root, in the order in which they were added. All edges are in
// one hash table, so that a step costs one probe, and a trie of a few thousand nodes fits the
// processor's cache.
class ByteTrie {
 public:
  using Node = std::uint32_t;
  static constexpr Node kRoot = 0;  // is no node's child, hence also: no such child

  std::size_t size() const { return size_; }

  Node child(Node node, unsigned char byte) const {
    const std::uint64_t key = key_of(node, byte);
    for (std::size_t slot = start_of(key);; slot = (slot + 1) & mask()) {
      if (edges_[slot].key == key) return edges_[slot].child;
      if (edges_[slot].key == 0) return kRoot;
    }
  }

  Node add_child(Node node, unsigned char byte) {
    if (const Node known = child(node, byte)) return known;
    if (2 * size_ >= edges_.size()) grow();
    insert({key_of(node, byte), static_cast<Node>(size_)});
    return static_cast<Node>(size_++);
  }

 private:
  struct Edge {
    std::uint64_t key = 0;  // parent and byte, 0 for none
    Node child = kRoot;
  };

  static std::uint64_t key_of(Node node, unsigned char byte) {
    return ((std::uint64_t{node} << 8) | byte) + 1;
  }

  std::size_t mask() const { return edges_.size() - 1; }
  // Fibonacci hashing: the top bits of a product depend on all bits of the key.
  std::size_t start_of(std::uint64_t key) const {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15) >> shift_);
  }

  void insert(const Edge& edge) {
    std::size_t slot = start_of(edge.key);
    while (edges_[slot].key != 0) slot = (slot + 1) & mask();
    edges_[slot] = edge;
  }

  void grow() {
    std::vector<Edge> old(2 * edges_.size());
    old.swap(edges_);
    --shift_;
    for (const Edge& edge : old) {
      if (edge.key != 0) insert(edge);
    }
  }

  static constexpr int kFirstBits = 6;
  std::vector<Edge> edges_ = std::vector<Edge>(std::size_t{1} << kFirstBits);  // a power of two
  int shift_ = 64 - kFirstBits;
  std::size_t size_ = 1;
};

}  // namespace kz

#endif  // KZ_MORPHOLOGY_BYTE_TRIE_H
