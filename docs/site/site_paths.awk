# In the project pictures are where each page sees docs/images; on the site all pages stand
# in one folder, beside images/.
{
    gsub(/\(\.\.\/images\//, "(images/")
    gsub(/docs\/images\//, "images/")
    print
}
