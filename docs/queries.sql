-- Ten questions to a store. They run as they stand on both of its forms:
--     sqlite3 -header -column fleet.sqlite < queries.sql
--     cd dataset && (cat dataset.sql queries.sql) | duckdb        (dataset.sql stands beside this file)
-- A recording that was read from several equal copies counts once. Where copies hold different parts of one, each part is a cycle of its own
-- here; the logbook's window counts them once.

-- 1. Which engines drift in oil temperature at climb? Their latest five flights lie outside the range of the twenty before them.
WITH figure AS (
    SELECT engine_id, median, row_number() OVER (PARTITION BY engine_id ORDER BY flight.date_time DESC) AS back
    FROM key_value JOIN flight USING (flight_id) JOIN cycle USING (cycle_id)
    WHERE parameter = 'Oil Temperature A' AND phase = 'climb' AND flight.date_time IS NOT NULL),
ranked AS (
    SELECT engine_id, median, back <= 5 AS is_latest, row_number() OVER (PARTITION BY engine_id, back <= 5 ORDER BY median) AS place
    FROM figure WHERE back <= 25),
compared AS (
    SELECT engine_id, count(*) AS flights, max(CASE WHEN is_latest AND place = 3 THEN median END) AS latest,
        sum(CASE WHEN is_latest THEN 0 WHEN place = 1 THEN median * 0.05 WHEN place = 2 THEN median * 0.95 END) AS low,
        sum(CASE WHEN is_latest THEN 0 WHEN place = 19 THEN median * 0.95 WHEN place = 20 THEN median * 0.05 END) AS high
    FROM ranked GROUP BY engine_id)
SELECT engine_id, latest, low, high FROM compared WHERE flights = 25 AND (latest < low OR latest > high) ORDER BY engine_id;

-- 2. How many hours has each engine run since its manifold pressure was last above the limit? Of that cycle itself what lies behind it counts, as
-- far as the engine ran at all. Cycles whose unit had no clock are in neither.
WITH overboost AS (
    SELECT engine_id, cycle.date_time AS last_time, engine_running AS running, cycle.end_time - max(episode.end_time) AS behind,
        row_number() OVER (PARTITION BY engine_id ORDER BY cycle.date_time DESC) AS back
    FROM episode JOIN cycle USING (cycle_id)
    WHERE kind = 'limit' AND side = 'high' AND state = 2 AND incident_id IS NOT NULL AND parameter LIKE 'Manifold Pressure%'
        AND cycle.date_time IS NOT NULL
    GROUP BY engine_id, cycle_id, cycle.date_time, engine_running, cycle.end_time)
SELECT overboost.engine_id, last_time,
    (CASE WHEN running < behind THEN running ELSE behind END + coalesce(sum(engine_running), 0)) / 3600 AS hours_since
FROM overboost LEFT JOIN cycle ON cycle.engine_id = overboost.engine_id AND cycle.date_time > last_time
WHERE back = 1 GROUP BY overboost.engine_id, last_time, running, behind ORDER BY hours_since, overboost.engine_id;

-- 3. How much fuel does a tow take, month by month? Where a cycle tells no fuel, its tows are counted and not averaged.
SELECT substr(flight.date_time, 1, 7) AS month, count(*) AS tows, count(fuel) AS tows_with_fuel,
    avg(CASE WHEN fuel IS NOT NULL THEN total_fuel END) AS litres_a_tow, sum(CASE WHEN fuel IS NOT NULL THEN total_fuel END) AS litres
FROM flight JOIN cycle USING (cycle_id) WHERE flight.date_time IS NOT NULL GROUP BY substr(flight.date_time, 1, 7) ORDER BY month;

-- 4. What has each engine done?
SELECT engine_id, count(*) AS cycles, sum(engine_running) / 3600 AS engine_hours, sum(flight_time) / 3600 AS flight_hours, sum(fuel) AS litres,
    sum(CASE WHEN verdict = 'limit' THEN 1 ELSE 0 END) AS cycles_over_a_limit
FROM cycle GROUP BY engine_id ORDER BY engine_id;

-- 5. Which limits are passed most often, and how far at worst?
SELECT parameter, side, unit, count(*) AS times, count(DISTINCT engine_id) AS engines, max(abs(peak - boundary)) AS farthest_beyond
FROM episode JOIN cycle USING (cycle_id)
WHERE kind = 'limit' AND state = 2 AND incident_id IS NOT NULL
GROUP BY parameter, side, unit ORDER BY times DESC, parameter, side;

-- 6. Which engines have stopped in flight?
SELECT engine_id, cycle.date_time, episode.start_time, episode.end_time - episode.start_time AS seconds
FROM episode JOIN cycle USING (cycle_id) WHERE kind = 'stop' ORDER BY engine_id, cycle.date_time, episode.start_time;

-- 7. Does the take-off run grow? Metres until 15 m above the ground, by engine and month.
SELECT engine_id, substr(flight.date_time, 1, 7) AS month, count(*) AS flights, avg(take_off_distance15m) AS metres
FROM flight JOIN cycle USING (cycle_id) WHERE take_off_distance15m > 0 AND flight.date_time IS NOT NULL
GROUP BY engine_id, substr(flight.date_time, 1, 7) ORDER BY engine_id, month;

-- 8. Which faults does the fleet report, and on how many engines?
SELECT parameter, count(*) AS times, count(DISTINCT engine_id) AS engines, sum(episode.end_time - episode.start_time) AS seconds
FROM episode JOIN cycle USING (cycle_id)
WHERE kind = 'fault' AND incident_id IS NOT NULL GROUP BY parameter ORDER BY engines DESC, times DESC, parameter;

-- 9. Which flight of each engine was the hottest in climb?
WITH hottest AS (
    SELECT engine_id, flight.date_time, flight.number, p95,
        row_number() OVER (PARTITION BY engine_id ORDER BY p95 DESC, flight.date_time, flight.number) AS place
    FROM key_value JOIN flight USING (flight_id) JOIN cycle USING (cycle_id)
    WHERE parameter = 'Oil Temperature A' AND phase = 'climb')
SELECT engine_id, date_time, number, p95 FROM hottest WHERE place = 1 ORDER BY engine_id;

-- 10. What is wrong with cards, and how often?
SELECT reason, count(*) AS files, count(DISTINCT card_id) AS cards FROM problem GROUP BY reason ORDER BY files DESC, reason;
