-- The tables of a Parquet dataset under the names that they have in an SQLite store, for DuckDB started in the folder of the dataset.
CREATE OR REPLACE VIEW cycle AS SELECT * FROM read_parquet('cycles/**/*.parquet', hive_partitioning = true);
CREATE OR REPLACE VIEW flight AS SELECT * FROM read_parquet('flights/**/*.parquet', hive_partitioning = true);
CREATE OR REPLACE VIEW incident AS SELECT * FROM read_parquet('incidents/**/*.parquet', hive_partitioning = true);
CREATE OR REPLACE VIEW episode AS SELECT * FROM read_parquet('episodes/**/*.parquet', hive_partitioning = true);
CREATE OR REPLACE VIEW key_value AS SELECT * FROM read_parquet('key_values/**/*.parquet', hive_partitioning = true);
CREATE OR REPLACE VIEW problem AS SELECT * FROM read_parquet('problems/**/*.parquet', hive_partitioning = true);
