CREATE TABLE IF NOT EXISTS tables (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    table_name TEXT,
    capacity INTEGER,
    status TEXT, -- available/occupied/reserved
    created_at TEXT NOT NULL DEFAULT CURRENT_TIMESTAMP
);
