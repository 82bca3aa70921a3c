// node check-sbom.js FILE: holds a bill of materials to the strict schema of its format. NODE_PATH names where the packages lie.
const { Spec, Validation } = require('@cyclonedx/cyclonedx-library');
const text = require('fs').readFileSync(process.argv[2], 'utf8');
new Validation.JsonStrictValidator(Spec.Version.v1dot6).validate(text).then(problem => {
    if (problem !== null)
        console.log(JSON.stringify(problem, null, 1));
    process.exit(problem === null ? 0 : 1);
}).catch(error => { console.log(String(error)); process.exit(1); });
