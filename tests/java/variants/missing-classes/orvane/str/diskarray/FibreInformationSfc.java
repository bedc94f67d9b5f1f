package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class FibreInformationSfc {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String biu;
    public String sequence;
    public String oper_firmware;
    public String post_firmware;
    public String endec;
    public String fc_ph;
}
