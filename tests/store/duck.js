// node duck.js FOLDER < statements as a JSON list: runs them in the folder, and answers the rows of each as JSON.
const { DuckDBInstance } = require('@duckdb/node-api');
const plain = (key, value) => typeof value === 'bigint' ? Number(value) : Number.isNaN(value) ? 'nan' : value;
(async () => {
    process.chdir(process.argv[2]);
    const connection = await (await DuckDBInstance.create(':memory:')).connect();
    const answers = [];
    for (const sql of JSON.parse(require('fs').readFileSync(0, 'utf8')))
        answers.push((await connection.runAndReadAll(sql)).getRowObjectsJS());
    console.log(JSON.stringify(answers, plain));
})().catch(error => { console.error(String(error)); process.exit(1); });
