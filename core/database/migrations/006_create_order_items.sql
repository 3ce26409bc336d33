CREATE TABLE IF NOT EXISTS order_items (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    order_id INTEGER,
    item_id INTEGER,
    item_name TEXT,
    quantity INTEGER,
    portion_size TEXT,
    price NUMERIC, -- cents
    is_taxable INTEGER NOT NULL,
    item_status TEXT, -- pending/served
    notes TEXT,
    created_at TEXT NOT NULL DEFAULT CURRENT_TIMESTAMP,
    FOREIGN KEY (order_id) REFERENCES orders(id) ON DELETE CASCADE ON UPDATE CASCADE,
    FOREIGN KEY (item_id) REFERENCES menu(id) ON DELETE RESTRICT ON UPDATE CASCADE
);
