package kxtest;

/**
 * Every result class lacking the last field whose failure drops the object:
 * the single-record getters report 2817 rather than return an object with the
 * JVM's error pending; the lists and the quiet getters end with the JVM's own
 * error.
 */
public class WriterLastCheckedTest extends VariantTable {
    public WriterLastCheckedTest() {
        super("writer-last-checked");
    }
}
