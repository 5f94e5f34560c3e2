# In the project pictures are where each page sees docs/images; on the site all pages stand
# in one folder, beside images/ and the schema.
{
    gsub(/\(\.\.\/images\//, "(images/")
    gsub(/docs\/images\//, "images/")
    gsub(/\(docs\/page\.schema\.json\)/, "(page.schema.json)")
    print
}
