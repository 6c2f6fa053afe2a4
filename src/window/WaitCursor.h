#pragma once

// The cursor that tells the user to wait. Begin and End nest.
class CWaitCursor {
  public:
    virtual ~CWaitCursor() = default;
    virtual void Begin() = 0;
    virtual void End() = 0;
};

// Shows the wait cursor as long as it lives, so that every way out of a handler ends it.
class CWaitScope {
  public:
    explicit CWaitScope(CWaitCursor& cursor) : m_cursor(cursor) { m_cursor.Begin(); }
    ~CWaitScope() { m_cursor.End(); }
    CWaitScope(const CWaitScope&) = delete;
    CWaitScope& operator=(const CWaitScope&) = delete;

  private:
    CWaitCursor& m_cursor;
};
