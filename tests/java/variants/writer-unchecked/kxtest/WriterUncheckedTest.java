package kxtest;

/**
 * Result classes lacking a last field whose failure does not drop the object
 * (the object comes back with the JVM's error pending), and one lacking a
 * checked field of a record that is also nested in another result.
 */
public class WriterUncheckedTest extends VariantTable {
    public WriterUncheckedTest() {
        super("writer-unchecked");
    }
}
