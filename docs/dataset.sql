-- The tables of a Parquet dataset under the names that they have in an SQLite store, for DuckDB started in the folder of the dataset.
-- A recording counts once, whatever the number of folders that it stands in: workers know nothing of each other, so copies of a card that tells no
-- serial number stand under each of its names. One that was not finished when its worker was killed does not count.
CREATE OR REPLACE VIEW cycle AS SELECT * FROM read_parquet('cycles/**/*.parquet', hive_partitioning = true, hive_types_autocast = false)
    QUALIFY row_number() OVER (PARTITION BY cycle_id ORDER BY month, engine) = 1;
CREATE OR REPLACE VIEW flight AS SELECT * FROM read_parquet('flights/**/*.parquet', hive_partitioning = true, hive_types_autocast = false)
    SEMI JOIN cycle USING (cycle_id, engine, month);
CREATE OR REPLACE VIEW incident AS SELECT * FROM read_parquet('incidents/**/*.parquet', hive_partitioning = true, hive_types_autocast = false)
    SEMI JOIN cycle USING (cycle_id, engine, month);
CREATE OR REPLACE VIEW episode AS SELECT * FROM read_parquet('episodes/**/*.parquet', hive_partitioning = true, hive_types_autocast = false)
    SEMI JOIN cycle USING (cycle_id, engine, month);
CREATE OR REPLACE VIEW key_value AS SELECT * FROM read_parquet('key_values/**/*.parquet', hive_partitioning = true, hive_types_autocast = false)
    SEMI JOIN flight USING (flight_id, engine, month);
CREATE OR REPLACE VIEW problem AS SELECT * FROM read_parquet('problems/**/*.parquet', hive_partitioning = true, hive_types_autocast = false);
