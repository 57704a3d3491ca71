// The doubly linked list node that depth objects and pattern entries derive from.
#pragma once

namespace plenovia {

// A node owns nothing: whoever owns a list destroys its first node and, before that, the rest of
// it with DeleteRest(). A const node gives const neighbours.
class TLinkObj {
 public:
  TLinkObj() = default;
  TLinkObj(const TLinkObj&) = delete;
  TLinkObj& operator=(const TLinkObj&) = delete;
  virtual ~TLinkObj() = default;

  // Plain access to the two links; the neighbours stay as they are.
  virtual void SetNext(TLinkObj* node) { next_ = node; }
  virtual void SetPrev(TLinkObj* node) { prev_ = node; }
  virtual TLinkObj* GetNext() { return next_; }
  virtual TLinkObj* GetPrev() { return prev_; }
  const TLinkObj* GetNext() const { return next_; }
  const TLinkObj* GetPrev() const { return prev_; }

  // The node at the end of the next links; this one when it has no next.
  virtual TLinkObj* GetLast();
  const TLinkObj* GetLast() const;

  // Destroys every node after this one, the last one first. The nodes must come from `new`. Chains
  // of any length are safe.
  virtual void DeleteRest();

  // Joins the two neighbours, where there are any. This node's own links stay as they were.
  virtual void Unlink();

 private:
  TLinkObj* next_ = nullptr;
  TLinkObj* prev_ = nullptr;
};

}  // namespace plenovia
