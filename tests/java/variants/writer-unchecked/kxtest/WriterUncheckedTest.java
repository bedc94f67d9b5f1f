package kxtest;

/**
 * Result classes lacking their last field whose failure does not drop the
 * object: where no checked field follows it the object comes back with the
 * JVM's error pending, otherwise the next checked field fails and the object
 * is dropped.  The session class leaves its token unmade, which drops nothing.
 */
public class WriterUncheckedTest extends VariantTable {
    public WriterUncheckedTest() {
        super("writer-unchecked");
    }
}
