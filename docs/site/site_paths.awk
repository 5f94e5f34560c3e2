# In the project each page has its own path to docs/images; on the site all pages are in one
# folder, beside images/ and the schema.
{
    gsub(/\(\.\.\/images\//, "(images/")
    gsub(/docs\/images\//, "images/")
    gsub(/\(docs\/page\.schema\.json\)/, "(page.schema.json)")
    print
}
