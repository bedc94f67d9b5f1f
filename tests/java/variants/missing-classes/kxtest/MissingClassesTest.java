package kxtest;

/**
 * Element classes of the arrays the natives create cannot be found: records
 * holding such an array report 2817, lists answer the JVM's lookup failure,
 * the unit table reports -1.
 */
public class MissingClassesTest extends VariantTable {
    public MissingClassesTest() {
        super("missing-classes");
    }
}
