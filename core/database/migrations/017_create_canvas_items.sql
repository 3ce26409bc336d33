CREATE TABLE IF NOT EXISTS canvas_items (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    floor_id INTEGER NOT NULL,
    table_id INTEGER,
    type TEXT NOT NULL, -- table/wall/room/door/text
    label TEXT,
    x REAL NOT NULL,
    y REAL NOT NULL,
    width REAL NOT NULL,
    height REAL NOT NULL,
    rotation REAL DEFAULT 0,
    color TEXT, -- hex
    border_color TEXT,
    border_width REAL DEFAULT 2,
    opacity REAL DEFAULT 1.0,
    z_order INTEGER DEFAULT 0,
    metadata TEXT, -- json string
    created_at DATETIME DEFAULT CURRENT_TIMESTAMP,
    updated_at DATETIME DEFAULT CURRENT_TIMESTAMP,
    FOREIGN KEY (floor_id) REFERENCES floors(id) ON DELETE CASCADE,
    FOREIGN KEY (table_id) REFERENCES tables(id) ON DELETE CASCADE
);
